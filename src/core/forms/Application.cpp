// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/Application.h"

#include "forms/NoticeText.h"
#include "machine/Dialogs.h"
#include "machine/Program.h"
#include "machine/SettingsHive.h"
#include "settings/KeyPaths.h"

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

Application::Application(const Machine &onMachine, std::function<void(Form &)> formMadeHook, RunWatch *watch)
    : settings(onMachine)
    , machine(onMachine)
    , formMade(std::move(formMadeHook))
    , catalogue(machine, [this](const QString &name) { return FormOfName(name); })
    , optionForm(machine, settings, catalogue)
    , context{machine, settings, session, optionForm.clickSound, catalogue, watch ? *watch : silence, version}
{
}

void Application::Start()
{
    try {
        Main();
    } catch (const Failure &failure) {
        EndAsFailed(failure);
    }
    machine.hive.Flush();
}

void Application::Main()
{
    // Kept: the first and the last of these are read by nobody.
    session.OlderKey = OlderKeyPath.toString();
    session.AppTitle = u"Brindlekit"_s;
    session.NoticeText = NoticeLines().join(u'\n');
    RestoreOptions();
    if (settings.ReadInt32(keys::ShowTips) != 0)
        ShowTips();
    else
        ShowMainWindow();
}

void Application::RestoreOptions()
{
    // No index is tested against its group: a stored one outside it stops the start.
    frmOption().optButtonStyle.Select(settings.ReadInt32(keys::ButtonStyle));
    frmOption().ChkAutoOption.SetValue(settings.ReadInt32(keys::ShowDigit));
    frmOption().EnableDigits(frmOption().ChkAutoOption.Value() != 0);
    frmOption().ChkAnimOption.SetValue(settings.ReadInt32(keys::EnableAnimation));
    frmOption().EnableAnimation(frmOption().ChkAnimOption.Value() != 0);
    frmOption().OptDigit.Select(settings.ReadInt32(keys::DigitType));
    frmOption().OptSound.Select(settings.ReadInt32(keys::Sound));
}

void Application::ShowTips()
{
    // Kept: on this road the animation's two numbers aren't restored. The main window comes up when the
    // tip window goes.
    frmTip().Show();
    frmTip().chkLoadTipsAtStartup.SetValue(1);
    frmAbout().chkLoadTipsAtStartup.SetValue(1);
}

void Application::ShowMainWindow()
{
    frmOption().txtHeight.SetText(settings.ReadText(keys::AnimHeight));
    frmOption().txtWidth.SetText(settings.ReadText(keys::AnimWidth));
    frmMain().Show();
}

OptionForm &Application::frmOption()
{
    if (!std::exchange(optionFormMet, true))
        Adopt(optionForm);
    return optionForm;
}

MainForm &Application::frmMain()
{
    if (mainForm)
        return *mainForm;
    auto made = std::make_unique<MainForm>(context, frmOption());
    made->AboutWanted.Handle([this] { frmAbout().Show(); });
    return Keep(mainForm, std::move(made));
}

TipForm &Application::frmTip()
{
    if (tipForm)
        return *tipForm;
    return Keep(
        tipForm,
        std::make_unique<TipForm>(
            context,
            TipForm::Others{
                .tipsSwitched = [this](int value) { frmAbout().chkLoadTipsAtStartup.SetValue(value); },
                .showAbout = [this] { frmAbout().Show(); },
                .unloaded = [this] { frmMain().Show(); },
            }));
}

AboutForm &Application::frmAbout()
{
    return aboutForm ? *aboutForm : Keep(aboutForm, std::make_unique<AboutForm>(context, frmOption()));
}

Form *Application::FormOfName(const QString &name)
{
    if (name == frmOption().Name())
        return &frmOption();
    return name == u"frmAbout" ? static_cast<Form *>(&frmAbout()) : &frmMain();
}

template <typename F> F &Application::Keep(std::unique_ptr<F> &place, std::unique_ptr<F> made)
{
    place = std::move(made);
    Adopt(*place);
    return *place;
}

void Application::Adopt(Form &form)
{
    form.SetFatalHandler([this](const Failure &failure) { EndAsFailed(failure); });
    form.SetAfterEvent([this] { machine.hive.Flush(); });
    if (formMade)
        formMade(form);
    form.EnsureLoaded();
}

void Application::EndAsFailed(const Failure &failure)
{
    machine.dialogs.ShowFatal(failure.Number(), failure.description);
    machine.hive.Flush();
    machine.program.End(1);
}

} // namespace tressel
