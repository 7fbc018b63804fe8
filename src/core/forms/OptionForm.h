// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/OptionGroup.h"
#include "controls/TextBox.h"
#include "tools/LiveOptions.h"

namespace tressel {

/// The options dialog. It is made hidden at start-up and lives as long as the program: its controls are
/// not a view of the settings but the settings themselves, which the tools read as they run.
class OptionForm : public Form {
public:
    OptionForm();

    /// The controls that tools read.
    LiveOptions Live();
    /// Enables or disables the choice of digits.
    void EnableDigits(bool enabled);
    /// Enables or disables what the closing animation asks for.
    void EnableAnimation(bool enabled);

    Frame FrmeButtonStyle;
    OptionGroup optButtonStyle;
    CheckBox ChkAutoOption;
    Frame FrmeNumFolders;
    OptionGroup OptDigit;
    CheckBox ChkAnimOption;
    Frame FrmeAnimation;
    Label lblHeight;
    TextBox txtHeight;
    Label lblWidth;
    TextBox txtWidth;
    IsButton btnGBDefault;
    Frame FrmeSound;
    OptionGroup OptSound;
};

} // namespace tressel
