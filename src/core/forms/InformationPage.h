// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "controls/TextBox.h"

#include <array>

namespace tressel {

class ClickSound;
class Settings;

/// The page of the options dialog that shows what the system says about itself and who it is registered to.
/// Owner and organisation can be changed; where the system doesn't take the change it shows until the page
/// is filled anew.
class InformationPage {
public:
    /// Puts the page's controls into the form.
    InformationPage(Form &form, Settings &settings, const ClickSound &clickSound);

    /// Fills the labels from the system's facts. To be called when the page opens.
    void FillSystemInfo();
    /// To be called when a page of the dialog opens: the boxes show only between the two buttons. Kept: the
    /// second button stays in view.
    void HideBoxes();

    Frame FrmeInfo;
    Label lblHeaderInformation;
    Label lblSystem;
    Label lblRegitered;
    std::array<Label, 5> lblInformation; ///< product, version, service level, owner and organisation
    PictureBox PicBakground; ///< holds the two boxes, over the labels that they change
    std::array<TextBox, 2> txtInformation; ///< owner and organisation
    IsButton btnGBChangeInfo;
    IsButton btnGBUpdateInfo;

private:
    enum Line { Product, Version, ServiceLevel, Owner, Organization };

    void SetEditing(bool isEditing);
    void btnGBChangeInfo_Click();
    void btnGBUpdateInfo_Click();

    Settings &settings;
    const ClickSound &clickSound;
};

} // namespace tressel
