// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

class CheckBox;
class OptionGroup;
class TextBox;

/// The controls of the options dialog that tools read as they run: the dialog's controls are the
/// settings themselves, also while it is hidden.
struct LiveOptions {
    OptionGroup &OptSound; ///< entry 0: clicks are heard
    CheckBox &ChkAutoOption; ///< checked: numbered folders take the digits of OptDigit
    OptionGroup &OptDigit;
    CheckBox &ChkAnimOption; ///< checked: the window folds up when it closes
    TextBox &txtHeight; ///< twips a round of that
    TextBox &txtWidth;
};

} // namespace tressel
