// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "controls/TextBox.h"

namespace tressel {

class ClickSound;
class FileSystem;
class OptionForm;
class Settings;
class Shell;
struct FormContext;
struct VersionBlock;

/// The window that says what the program is. Its check box and that of the tip window go together.
class AboutForm : public Form {
public:
    /// The button's look comes from the options.
    AboutForm(const FormContext &context, const OptionForm &options);

    // One picture in two states, of which one shows.
    PictureBox picLogo;
    PictureBox picLogo2; ///< while it is pressed
    Label lblTitle;
    Label lblVersion;
    Label lblCopyright;
    Label lblComments;
    Label lblHomePage; ///< an address that a click opens
    Label lblEMail; ///< a click begins a mail to it
    Label lblAbout; ///< heads the agreement
    TextBox Text1; ///< the agreement
    CheckBox chkLoadTipsAtStartup;
    IsButton btnGBOK;

private:
    void TieControls(const ClickSound &clickSound);
    void LoadForm();
    void ApplyStyle();
    void ShowLogo(bool isPressed);
    void WriteMail();

    FileSystem &files;
    Shell &shell;
    Settings &settings;
    const OptionForm &options;
    const VersionBlock &version;
};

} // namespace tressel
