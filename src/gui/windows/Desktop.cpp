// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/Desktop.h"

#include "machine/Dialogs.h"
#include "machine/Program.h"
#include "machine/SettingsHive.h"
#include "settings/FileHive.h"
#include "widgets/OwnKinds.h"
#include "widgets/ProgramIcons.h"
#include "widgets/SystemColours.h"
#include "windows/AboutWindow.h"
#include "windows/MainWindow.h"
#include "windows/OptionWindow.h"
#include "windows/SplitBar.h"
#include "windows/Swatch.h"
#include "windows/TipWindow.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

FaceLooks Looks()
{
    FaceLooks looks;
    looks.folder = ProgramIcon(u"folder"_s);
    looks.nodes = {{4, ProgramIcon(u"tree-root"_s)},
                   {5, ProgramIcon(u"tree-planned"_s)},
                   {6, ProgramIcon(u"tree-created"_s)}};
    looks.colour = TranslateColour;
    return looks;
}

FaceMakers Makers()
{
    const FaceLooks looks = Looks();
    FaceMakers makers(looks);
    AddOwnKinds(makers);
    makers.Add<PictureBox, SplitBar, SplitBarFace>(looks);
    makers.Add<PictureBox, SplitGrip, SplitGripFace>(looks);
    makers.Add<PictureBox, Swatch, SwatchFace>(looks);
    return makers;
}

std::unique_ptr<QWidget> WindowOf(const Form &form)
{
    if (const auto *mainForm = dynamic_cast<const MainForm *>(&form))
        return std::make_unique<MainWindow>(*mainForm);
    if (dynamic_cast<const OptionForm *>(&form))
        return std::make_unique<OptionWindow>();
    if (dynamic_cast<const TipForm *>(&form))
        return std::make_unique<TipWindow>();
    if (dynamic_cast<const AboutForm *>(&form))
        return std::make_unique<AboutWindow>();
    return nullptr;
}

} // namespace

Desktop::Desktop(Program &runningProgram, SettingsHive &settingsHive)
    : machine(runningProgram, settingsHive)
    , application(machine.AsMachine(), [this](Form &form) { MakeWindow(form); })
    , program(runningProgram)
    , hive(settingsHive)
    , makers(Makers())
{
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &sessionEnd, [this] { systemEnds = true; });
}

void Desktop::MakeWindow(Form &form)
{
    auto window = WindowOf(form);
    if (!window)
        return;
    if (dynamic_cast<MainWindow *>(window.get()))
        machine.screen.SetMainWindow(window.get());
    const bool isOwned = form.Name() == u"frmAbout"_s || form.Name() == u"frmOption"_s;
    // A desktop keeps no other kind of window before its owner.
    if (isOwned)
        window->setWindowFlag(Qt::Dialog);
    auto face = std::make_unique<WindowFace>(form, *window, makers, machine.updates);
    shown.push_back({std::move(window), std::move(face)});
    if (isOwned)
        form.Activate.Also([this, &form] { PutBeforeMain(form); });
}

void Desktop::PutBeforeMain(const Form &form)
{
    const WindowFace *main = FaceOf(u"frmMain"_s);
    QWindow *owner = main ? main->Window().windowHandle() : nullptr;
    if (!owner)
        return;
    QWidget &window = FaceOf(form.Name())->Window();
    window.winId(); // It may never have been shown.
    window.windowHandle()->setTransientParent(owner);
}

const WindowFace *Desktop::FaceOf(const QString &formName) const
{
    const auto found =
        std::ranges::find(shown, formName, [](const Shown &each) { return each.face->ShownForm().Name(); });
    return found == shown.end() ? nullptr : found->face.get();
}

void Desktop::End()
{
    systemEnds = true;
    const WindowFace *face = FaceOf(u"frmMain"_s);
    if (face && face->ShownForm().IsLoaded()) {
        Form &form = face->ShownForm();
        form.Dispatch([&] { form.Unload(); });
        return;
    }
    hive.Flush();
    program.End(0);
}

void Desktop::TellUnsaved(const QString &problem)
{
    if (systemEnds)
        return;
    machine.AsMachine().dialogs.Show(
        {u"The settings of this run could not be saved.\n\n"_s + problem, {}, BoxIcon::Exclamation});
}

bool SaveSettings(FileHive &hive, Desktop *desktop)
{
    const QString problem = hive.FlushAtEnd();
    if (problem.isEmpty())
        return true;
    qWarning("The settings of this run could not be saved. %s", qUtf8Printable(problem));
    if (desktop)
        desktop->TellUnsaved(problem);
    return false;
}

} // namespace tressel
