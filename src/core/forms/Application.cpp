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

Application::Application(const Machine &onMachine, std::function<void(Form &)> formMadeHook)
    : settings(onMachine)
    , machine(onMachine)
    , formMade(std::move(formMadeHook))
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
    return optionForm ? *optionForm : Adopt(optionForm, std::make_unique<OptionForm>());
}

MainForm &Application::frmMain()
{
    if (mainForm)
        return *mainForm;
    return Adopt(mainForm, std::make_unique<MainForm>(machine, settings, session, frmOption()));
}

TipForm &Application::frmTip()
{
    if (tipForm)
        return *tipForm;
    clickSound.emplace(machine.sound, machine.files, machine.program, frmOption().OptSound);
    return Adopt(tipForm,
                 std::make_unique<TipForm>(
                     machine.files, machine.program, settings, *clickSound,
                     [this](int value) { frmAbout().chkLoadTipsAtStartup.SetValue(value); },
                     [this] { frmMain().Show(); }));
}

AboutForm &Application::frmAbout()
{
    return aboutForm ? *aboutForm : Adopt(aboutForm, std::make_unique<AboutForm>(settings));
}

template <typename F> F &Application::Adopt(std::unique_ptr<F> &place, std::unique_ptr<F> made)
{
    place = std::move(made);
    place->SetFatalHandler([this](const Failure &failure) { EndAsFailed(failure); });
    place->SetAfterEvent([this] { machine.hive.Flush(); });
    if (formMade)
        formMade(*place);
    place->EnsureLoaded();
    return *place;
}

void Application::EndAsFailed(const Failure &failure)
{
    machine.dialogs.ShowFatal(failure.Number(), failure.description);
    machine.hive.Flush();
    machine.program.End(1);
}

} // namespace tressel
