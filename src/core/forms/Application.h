// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "forms/AboutForm.h"
#include "forms/MainForm.h"
#include "forms/OptionForm.h"
#include "forms/TipForm.h"
#include "language/Session.h"
#include "machine/Machine.h"
#include "settings/Settings.h"

#include <functional>
#include <memory>
#include <optional>

namespace tressel {

/// The whole program without its faces: the machine it runs on, its settings, what the tools share,
/// and its forms. A form is made when it is first touched.
class Application {
public:
    /// `formMade` is called with each new form, before anything is put into its controls: the moment for
    /// whoever draws it.
    explicit Application(const Machine &machine, std::function<void(Form &)> formMade = {});

    /// The entry: restores the options, then shows the tip window or the main window. A failure that
    /// leaves it is shown in the fatal box and ends the process.
    void Start();

    OptionForm &frmOption();
    MainForm &frmMain();
    TipForm &frmTip();
    AboutForm &frmAbout();

    Session session;
    Settings settings;

private:
    void Main();
    void RestoreOptions();
    void ShowTips();
    void ShowMainWindow();
    template <typename F> F &Adopt(std::unique_ptr<F> &place, std::unique_ptr<F> made);
    void EndAsFailed(const Failure &failure);

    Machine machine;
    std::function<void(Form &)> formMade;
    std::unique_ptr<OptionForm> optionForm;
    std::unique_ptr<AboutForm> aboutForm;
    std::optional<ClickSound> clickSound; ///< of the tip window
    std::unique_ptr<TipForm> tipForm;
    std::unique_ptr<MainForm> mainForm;
};

} // namespace tressel
