// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Version.h"
#include "forms/AboutForm.h"
#include "forms/FormContext.h"
#include "forms/MainForm.h"
#include "forms/OptionForm.h"
#include "forms/TipForm.h"
#include "language/Catalogue.h"
#include "language/Session.h"
#include "settings/Settings.h"
#include "tools/RunWatch.h"

#include <functional>
#include <memory>

namespace tressel {

/// The whole program without its faces: the machine it runs on, its settings, what the tools share,
/// the one click sound, and its forms. A form is made when it is first touched, but for the options, whose
/// controls all others read.
class Application {
public:
    /// `formMade` is called with each new form, before anything is put into its controls: the moment for
    /// whoever draws it. `watch` hears what the tools' runs do, if somebody wants to; it outlives this.
    explicit Application(const Machine &machine, std::function<void(Form &)> formMade = {},
                         RunWatch *watch = nullptr);

    /// The entry: restores the options, then shows the tip window or the main window. A failure that
    /// leaves it is shown in the fatal box and ends the process.
    void Start();

    OptionForm &frmOption();
    MainForm &frmMain();
    TipForm &frmTip();
    AboutForm &frmAbout();

    Session session;
    Settings settings;
    VersionBlock version; ///< as it was built

private:
    void Main();
    void RestoreOptions();
    void ShowTips();
    void ShowMainWindow();
    template <typename F> F &Keep(std::unique_ptr<F> &place, std::unique_ptr<F> made);
    void Adopt(Form &form);
    Form *FormOfName(const QString &name);
    void EndAsFailed(const Failure &failure);

    Machine machine;
    std::function<void(Form &)> formMade;
    RunWatch silence; ///< what the runs tell is heard by nobody
    Catalogue catalogue;
    OptionForm optionForm;
    bool optionFormMet = false; ///< somebody touched it, so that who draws it knows it
    FormContext context;
    std::unique_ptr<AboutForm> aboutForm;
    std::unique_ptr<TipForm> tipForm;
    std::unique_ptr<MainForm> mainForm;
};

} // namespace tressel
