// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/AboutForm.h"
#include "forms/Application.h"
#include "forms/MainForm.h"
#include "forms/OptionForm.h"
#include "support/MemoryMachine.h"
#include "support/StoredKeys.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <set>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A program that is started, used wherever something is stored, and left by Exit.
class KeysInUse : public testing::Test {
protected:
    KeysInUse()
    {
        application.settings.Write(keys::ShowTips, u"0"_s);
        for (int number = keys::RecentPath.first; number < keys::RecentPath.last; ++number)
            application.settings.Write(keys::RecentPath.At(number), u"C:\\%1"_s.arg(number));
        machine.files.PutFolder(u"C:\\Work\\Sub"_s);
        machine.files.PutFile(u"C:\\Work\\long.bin"_s, "bytes");
        machine.files.PutFile(u"C:\\Tressel\\Lang\\Language.dat"_s, "English\r\n");
        machine.files.PutFile(u"C:\\Tressel\\Lang\\English.lng"_s, "000 LANGUAGE FILE v4.0\r\n");
        machine.journal.Clear();
    }

    void LiveOneDay()
    {
        application.Start();
        UseOptions();
        UseColours();
        UsePages();
        application.frmAbout().Show();
        application.frmAbout().Unload();
        EXPECT_THROW(application.frmMain().btnGBToolbarExit.UserClicks(), ProcessEnded);
    }

    void UseOptions()
    {
        options().ChkAnimOption.SetValue(0);
        options().cmbLanguage.UserSelects(0);
        options().btnGBApply.UserClicks();
    }

    void UseColours()
    {
        for (int swatch = 0; swatch < OptionForm::swatchCount; ++swatch) {
            machine.dialogs.ExpectChooseColour(0x123456);
            options().Swatch(swatch).UserClicks();
        }
        options().btnGBColor1.UserClicks();
        options().btnGBIconRight.UserClicks();
        options().btnGBHideSelItem.UserClicks();
        for (IsButton *fonts : {&options().btnGBTextSidebarFont, &options().btnGBTextHeadFont}) {
            machine.dialogs.ExpectChooseFont(FontChoice{{.family = u"Serif"_s}, 0});
            fonts->UserClicks();
        }
    }

    void UsePages()
    {
        MainForm &form = application.frmMain();
        form.EyeDropper1.UserSelects(3);
        machine.dialogs.ExpectOpenFile(u"C:\\Work\\long.bin"_s);
        form.splitter.btnBrowse.UserClicks();
        form.listing.CboFilePath.SetText(u"C:\\Work"_s);
        form.listing.btnGBMakeList.UserClicks();
        // A filled box loads the preset where an empty one stores it.
        form.rename.optReplacePreset.Select(RenamePage::MP3);
        form.rename.optReplacePreset.Select(RenamePage::None);
        form.rename.txtReplaceFrom.SetText(u"x"_s);
        form.rename.optReplacePreset.Select(RenamePage::MP3);
    }

    /// Kept: the first palette is stored, and nothing reads it.
    static bool IsOfFirstPalette(const KeyEntry &key)
    {
        return key.name == keys::Color.name && *key.number < OptionForm::secondPalette;
    }
    std::set<QString> Told(const QString &what) const
    {
        const QStringList names = machine.journal.About(what);
        return {names.begin(), names.end()};
    }

    OptionForm &options() { return application.frmOption(); }

    MemoryMachine machine;
    Application application{machine.machine};
};

TEST_F(KeysInUse, EveryKeyIsReadAndAllButTheSystemsFactsAreWritten)
{
    LiveOneDay();
    const std::set<QString> read = Told(u"ReadSetting"_s);
    const std::set<QString> written = Told(u"WriteSetting"_s);
    for (const StoredKey &stored : StoredKeys()) {
        const QString name = JournalNameOf(stored.key);
        EXPECT_NE(read.contains(name), IsOfFirstPalette(stored.key)) << name.toStdString();
        if (stored.place != KeyPlace::SystemFacts) {
            EXPECT_TRUE(written.contains(name)) << name.toStdString();
        }
    }
}

TEST_F(KeysInUse, NothingElseIsReadOrWritten)
{
    LiveOneDay();
    std::set<QString> known;
    for (const StoredKey &stored : StoredKeys())
        known.insert(JournalNameOf(stored.key));
    for (const QString &what : {u"ReadSetting"_s, u"WriteSetting"_s}) {
        for (const QString &name : Told(what))
            EXPECT_TRUE(known.contains(name)) << what.toStdString() << ' ' << name.toStdString();
    }
}

} // namespace
