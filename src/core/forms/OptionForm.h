// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/OptionGroup.h"
#include "controls/PictureBox.h"
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

    // The side bar's two palettes of eleven swatches each: PicColor(0) to (10) and (11) to (21).
    static constexpr int secondPalette = 11;
    static constexpr int swatchCount = 22;
    /// Fails with 9 outside the two palettes.
    PictureBox &Swatch(int index);
    /// Puts the default colours into the second palette.
    void SetDefaultColors();

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
    std::vector<std::unique_ptr<PictureBox>> PicColor;
    IsButton btnGBColor1;
    IsButton btnGBColor2;
    IsButton btnGBColorSystem;
};

} // namespace tressel
