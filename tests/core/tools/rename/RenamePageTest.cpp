// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RenameFixture.h"
#include "base/Steps.h"
#include "support/StartedProgram.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class RenamePageTest : public RenameFixture {
protected:
    QString Preset(const QString &name)
    {
        return machine.hive.Text(u"Software\\Halven Software\\Brindlekit\\3.0"_s, name);
    }
    void SelectPreset(RenamePage::Presets preset) { page.optReplacePreset.Button(preset).UserSelects(); }
};

const QString mainKey = u"Software\\Halven Software\\Tressel\\Main\\"_s;

TEST_F(RenamePageTest, TheFirstMP3PresetIsTheDefault)
{
    page.txtReplaceFrom.SetText(u"x"_s);
    page.txtReplaceTo.SetText(u"y"_s);
    SelectPreset(RenamePage::MP3);
    EXPECT_EQ(page.txtReplaceFrom.Text(), u"_"_s);
    EXPECT_EQ(page.txtReplaceTo.Text(), u""_s);
    EXPECT_EQ(Preset(u"ReplaceFrom"_s), u"_"_s);
    EXPECT_EQ(Preset(u"ReplaceTo"_s), u" "_s);
}

TEST_F(RenamePageTest, AnEmptyDefaultComesBackAsABlank)
{
    page.txtReplaceFrom.SetText(u"x"_s);
    SelectPreset(RenamePage::MP3);
    RenameTool later(machine.machine);
    later.page.txtReplaceFrom.SetText(u"x"_s);
    later.page.optReplacePreset.Button(RenamePage::MP3).UserSelects();
    EXPECT_EQ(later.page.txtReplaceFrom.Text(), u"_"_s);
    EXPECT_EQ(later.page.txtReplaceTo.Text(), u" "_s);
}

TEST_F(RenamePageTest, MP3StoresWhereNothingIsToBeFound)
{
    page.txtReplaceTo.SetText(u"-"_s);
    SelectPreset(RenamePage::MP3);
    EXPECT_EQ(Preset(u"ReplaceFrom"_s), u" "_s);
    EXPECT_EQ(Preset(u"ReplaceTo"_s), u"-"_s);
    EXPECT_EQ(page.txtReplaceFrom.Text(), u""_s);
    EXPECT_EQ(page.txtReplaceTo.Text(), u"-"_s);
}

TEST_F(RenamePageTest, NoneStoresWhatTheBoxesHold)
{
    SelectPreset(RenamePage::MP3);
    page.txtReplaceFrom.SetText(u"%20"_s);
    page.txtReplaceTo.SetText(u"."_s);
    SelectPreset(RenamePage::None);
    EXPECT_EQ(Preset(u"ReplaceFrom"_s), u"%20"_s);
    EXPECT_EQ(Preset(u"ReplaceTo"_s), u"."_s);
    EXPECT_EQ(page.txtReplaceFrom.Text(), u"%20"_s);
    page.txtReplaceFrom.SetText(u"else"_s);
    page.txtReplaceTo.SetText(u"else"_s);
    SelectPreset(RenamePage::MP3);
    EXPECT_EQ(page.txtReplaceFrom.Text(), u"%20"_s);
    EXPECT_EQ(page.txtReplaceTo.Text(), u"."_s);
}

TEST_F(RenamePageTest, ADropTakesTheFolderOfAFile)
{
    const QList<std::pair<QString, QString>> rows{
        {u"C:\\Music\\a.mp3"_s, u"C:\\Music"_s},          {u"C:\\Music"_s, u"C:\\Music"_s},
        {u"C:\\Music\\data.old"_s, u"C:\\Music"_s},       {u"C:\\a.mp3"_s, u"C:\\"_s},
        {u"C:\\Music\\a.html"_s, u"C:\\Music\\a.html"_s}, {u"C:\\"_s, u"C:\\"_s},
    };
    EXPECT_TRUE(page.txtCurrentPath.TakesDrops());
    for (const auto &[dropped, path] : rows) {
        page.txtCurrentPath.UserDrops({dropped, u"C:\\Other"_s});
        EXPECT_EQ(page.txtCurrentPath.Text(), path) << dropped.toStdString();
    }
}

TEST_F(RenamePageTest, ADropOfNothingChangesNothing)
{
    page.txtCurrentPath.UserDrops({});
    EXPECT_EQ(page.txtCurrentPath.Text(), u"C:\\W"_s);
}

TEST_F(RenamePageTest, BrowseStartsInAPathThatExists)
{
    bench.options.OptSound.Select(0);
    machine.dialogs.ExpectChooseFolder(u"C:\\Tressel"_s);
    page.btnGBBrowsePath.UserClicks();
    EXPECT_EQ(page.txtCurrentPath.Text(), u"C:\\Tressel"_s);
    page.txtCurrentPath.SetText(u"C:\\Gone"_s);
    machine.dialogs.ExpectChooseFolder(std::nullopt);
    page.btnGBBrowsePath.UserClicks();
    EXPECT_EQ(page.txtCurrentPath.Text(), u"C:\\Gone"_s);
    EXPECT_EQ(machine.dialogs.StartFolders(), (QStringList{u"C:\\W"_s, u""_s}));
    EXPECT_EQ(machine.journal.About(u"ChooseFolder"_s).value(0), u"Please, Select a folder."_s);
    EXPECT_EQ(machine.journal.Lines().first(), u"Play C:\\Tressel\\click.wav"_s);
}

TEST_F(RenamePageTest, SettingsAreReadAndWrittenInTheirOrder)
{
    const QStringList order{mainKey + u"TotalFileCount"_s, mainKey + u"ReplaceFrom"_s,
                            mainKey + u"ReplaceTo"_s,      mainKey + u"ExtAll"_s,
                            mainKey + u"ExtFrom"_s,        mainKey + u"ExtTo"_s,
                            mainKey + u"ReplaceTo"_s};
    page.txtReplaceFrom.SetText(u"1"_s);
    page.txtReplaceTo.SetText(u"2"_s);
    page.txtExtensionsChangeAllTo.SetText(u"3"_s);
    page.txtSpecificExtFrom.SetText(u"4"_s);
    page.txtSpecificExtTo.SetText(u"5"_s);
    page.SaveRenameSettings();
    EXPECT_EQ(machine.journal.About(u"WriteSetting"_s), order);

    RenameTool later(machine.machine);
    machine.journal.Clear();
    Steps steps;
    later.page.ResetRenamePage(steps);
    EXPECT_EQ(machine.journal.About(u"ReadSetting"_s), order);
    EXPECT_EQ(later.page.txtReplaceFrom.Text(), u"1"_s);
    EXPECT_EQ(later.page.txtReplaceTo.Text(), u"2"_s);
    EXPECT_EQ(later.page.txtExtensionsChangeAllTo.Text(), u"3"_s);
    EXPECT_EQ(later.page.txtSpecificExtFrom.Text(), u"4"_s);
    EXPECT_EQ(later.page.txtSpecificExtTo.Text(), u"5"_s);
    EXPECT_FALSE(steps.Pending());
}

TEST_F(RenamePageTest, AnEmptyStoreGivesEmptyTexts)
{
    page.txtCurrentPath.SetText({});
    page.txtReplaceFrom.SetText(u"x"_s);
    Steps steps;
    page.ResetRenamePage(steps);
    EXPECT_EQ(page.txtCurrentPath.Text(), u"C:\\Tressel"_s);
    EXPECT_EQ(page.txtReplaceFrom.Text(), u""_s);
    EXPECT_EQ(page.ProgressBar.Max(), 2);
    EXPECT_EQ(page.ProgressBar.Value(), 0);
    EXPECT_EQ(Status(), u"Processing wait 0.00%"_s);
}

TEST_F(RenamePageTest, ATotalThatIsNoNumberIsPassedOver)
{
    bench.settings.Write(keys::TotalFileCount, u"many"_s);
    bench.settings.Write(keys::ReplaceFrom, u"a"_s);
    Steps steps;
    page.ResetRenamePage(steps);
    EXPECT_EQ(steps.Pending(), FailureNumber::TypeMismatch);
    EXPECT_EQ(page.txtReplaceFrom.Text(), u"a"_s);
    PutFiles({u"a"_s});
    page.btnGBRename.UserClicks();
    EXPECT_EQ(Status(), Total(1));
}

TEST(RenamePageStart, TheTotalLastsOverStarts)
{
    MemoryMachine machine;
    machine.files.PutFile(u"C:\\W\\a"_s);
    machine.files.PutFile(u"C:\\W\\b"_s);
    for (const int total : {2, 4}) {
        Application application(machine.machine);
        application.settings.Write(keys::ShowTips, u"0"_s);
        application.Start();
        MainForm &form = application.frmMain();
        form.rename.txtCurrentPath.SetText(u"C:\\W"_s);
        form.rename.btnGBRename.UserClicks();
        EXPECT_EQ(form.area.lblStatusLine.Caption(), RenameTool::Total(total));
        EXPECT_THROW(form.btnGBToolbarExit.UserClicks(), ProcessEnded);
        EXPECT_EQ(application.settings.ReadText(keys::TotalFileCount), QString::number(total));
    }
}

TEST(RenamePageStart, AListingWritesTheRenameSettings)
{
    StartedProgram program;
    MainForm &form = program.Start();
    form.rename.txtReplaceFrom.SetText(u"from"_s);
    form.listing.CboFilePath.SetText(u"C:\\Work"_s);
    form.listing.SaveRecentPath();
    EXPECT_EQ(program.application.settings.ReadText(keys::ReplaceFrom), u"from"_s);
}

} // namespace
