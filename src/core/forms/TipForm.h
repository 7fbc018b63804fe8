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
    /// `tipsSwitched` is called with the check box's value after each click on it, `unloaded` when the
    /// window has gone, in whatever way.
    TipForm(const FormContext &context, std::function<void(int)> tipsSwitched,
            std::function<void()> unloaded);

    Frame Picture1; ///< holds the picture
    Frame Image1;
    Label Label1;
    Label lblTipText;
    IsButton cmdNextTip;
    IsButton cmdAbout;
    IsButton cmdOK;
    CheckBox chkLoadTipsAtStartup;

private:
    void LoadForm();
    bool LoadTips(const QString &path);
    void DisplayCurrentTip();
    void NextTip();

    FileSystem &files;
    const Program &program;
    QStringList tips;
    std::int32_t currentTip = 0;
};

} // namespace tressel
