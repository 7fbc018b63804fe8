// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/TipForm.h"

#include "forms/FormContext.h"
#include "machine/Paths.h"
#include "machine/Program.h"
#include "machine/TextFile.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// Shown all at once where the file is missing.
const QString builtInTips =
    u"1. If you will create a folder from filename Check for Ext for remove extension ex (.txt)\n"
    "2. If you will create from ex January, February or Peter, Joe... Unceck for Ext\n"
    "3. You must Remove hook (UnChecked) with ''Remove Ext'' see red Arrow below...\n"
    "4. If this is checked shows Wrong format and cut 4 last letter ex: (.txt) dot and txt = 4\n"_s;

} // namespace

TipForm::TipForm(const FormContext &context, Others toOthers)
    : Form(u"frmTip"_s)
    , Picture1(*this, u"Picture1"_s)
    , Image1(*this, u"Image1"_s)
    , Label1(*this, u"Label1"_s, u"Did you know..."_s)
    , lblTipText(*this, u"lblTipText"_s)
    , cmdNextTip(*this, u"cmdNextTip"_s, u"Next"_s)
    , cmdAbout(*this, u"cmdAbout"_s, u"About"_s)
    , cmdOK(*this, u"cmdOK"_s, u"OK"_s)
    , chkLoadTipsAtStartup(*this, u"chkLoadTipsAtStartup"_s, u"&Show Tips at Startup"_s)
    , files(context.machine.files)
    , program(context.machine.program)
    , others(std::move(toOthers))
{
    SetCaption(u"Tip of the Day"_s);
    Load.Handle([this] { LoadForm(); });
    Unloaded.Handle([this] { others.unloaded(); });
    TieControls(context);
}

void TipForm::TieControls(const FormContext &context)
{
    cmdNextTip.Click.Handle([this, &clickSound = context.clickSound] {
        clickSound.Play();
        NextTip();
    });
    cmdOK.Click.Handle([this, &clickSound = context.clickSound] {
        clickSound.Play();
        Unload();
    });
    cmdAbout.Click.Handle([this, &clickSound = context.clickSound] {
        clickSound.Play();
        others.showAbout();
    });
    chkLoadTipsAtStartup.Click.Handle([this, &settings = context.settings] {
        settings.Write(keys::ShowTips, QString::number(chkLoadTipsAtStartup.Value()));
        others.tipsSwitched(chkLoadTipsAtStartup.Value());
    });
}

void TipForm::LoadForm()
{
    const bool failed = LoadTips(JoinPath(files, program.Folder(), u"TIPOFDAY.TXT"_s));
    cmdNextTip.SetEnabled(!failed);
    if (failed)
        lblTipText.SetCaption(builtInTips);
    else
        NextTip();
}

bool TipForm::LoadTips(const QString &path)
{
    if (path.isEmpty() || !FileExists(files, path))
        return true;
    try {
        LineReader reader(files, path, NameBytes::Escaped, largestProgramText);
        while (const auto line = reader.Next())
            tips += *line;
        reader.Close();
    } catch (const Failure &) {
        return true;
    }
    return false;
}

void TipForm::DisplayCurrentTip()
{
    if (!tips.isEmpty())
        lblTipText.SetCaption(tips.at(currentTip - 1));
}

void TipForm::NextTip()
{
    ++currentTip;
    if (currentTip > tips.size())
        currentTip = 1;
    DisplayCurrentTip();
}

} // namespace tressel
