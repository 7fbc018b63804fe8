// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/Frame.h"
#include "controls/IsButton.h"
#include "controls/Label.h"

#include <cstdint>
#include <functional>

namespace tressel {

class FileSystem;
class Program;
struct FormContext;

/// The small window that can open before the main one and shows one line of TIPOFDAY.TXT at a time.
class TipForm : public Form {
public:
    /// What the window asks of the others.
    struct Others {
        std::function<void(int)> tipsSwitched; ///< called with the check box's value after each click on it
        std::function<void()> showAbout;
        std::function<void()> unloaded; ///< called when the window has gone, in whatever way
    };

    TipForm(const FormContext &context, Others others);

    Frame Picture1; ///< holds the picture
    Frame Image1;
    Label Label1;
    Label lblTipText;
    IsButton cmdNextTip;
    IsButton cmdAbout;
    IsButton cmdOK;
    CheckBox chkLoadTipsAtStartup;

private:
    void TieControls(const FormContext &context);
    void LoadForm();
    /// True if the file can't be used: there is none, or it can't be read.
    bool LoadTips(const QString &path);
    void DisplayCurrentTip();
    void NextTip();

    FileSystem &files;
    const Program &program;
    const Others others;
    QStringList tips; ///< filled once
    std::int32_t currentTip = 0;
};

} // namespace tressel
