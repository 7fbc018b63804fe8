// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/Catalogue.h"

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/IsButton.h"
#include "language/LanguageTexts.h"
#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <set>
#include <tuple>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const QString folder = u"C:\\Tressel\\Lang\\"_s;
const QByteArray mark = "000 LANGUAGE FILE v4.0\r\n";

class CatalogueTest : public testing::Test {
protected:
    std::int16_t Load(const QByteArray &bytes)
    {
        machine.files.PutFile(folder + u"Norwegian.lng"_s, bytes);
        return catalogue.LoadLanguage(catalogue.FileOf(u"Norwegian"_s));
    }

    MemoryMachine machine;
    Form form{u"frmMain"_s};
    IsButton btnGBSaveFile{form, u"btnGBSaveFile"_s, u"Save File"_s};
    IsButton btnGBLoadFile{form, u"btnGBLoadFile"_s, u"Load File"_s};
    CheckBox chkExtension{form, u"chkExtension"_s, u"Remove Ext"_s};
    ComboBox cmbLanguage{form, u"cmbLanguage"_s, ComboBox::Kind::List};
    Catalogue catalogue{machine.machine,
                        [this](const QString &name) { return name == form.Name() ? &form : nullptr; }};
};

TEST_F(CatalogueTest, ListHasNoCommentsAndNoEmptyLines)
{
    machine.files.PutFile(folder + u"Language.dat"_s, ";English\r\nGerman\r\n\r\n Norsk \r\n");
    catalogue.FillLanguageList(cmbLanguage);
    EXPECT_EQ(cmbLanguage.Items(), QStringList({u"German"_s, u" Norsk "_s}));
}

TEST_F(CatalogueTest, MissingListIsTold)
{
    machine.files.RemoveFile(folder + u"Language.dat"_s);
    machine.dialogs.ExpectBox({u"The Language file ''C:\\Tressel\\Lang\\Language.dat'' is not exist"_s,
                               u"Tressel"_s, BoxIcon::Exclamation});
    catalogue.FillLanguageList(cmbLanguage);
    EXPECT_EQ(cmbLanguage.ListCount(), 0);
}

TEST_F(CatalogueTest, MissingFolderIsTold)
{
    machine.files.RemoveFile(folder + u"Language.dat"_s);
    EXPECT_FALSE(machine.files.TryRemoveFolder(u"C:\\Tressel\\Lang"_s));
    machine.dialogs.ExpectBox({u"Path ''Lang'' Not Found"_s, u"Tressel"_s, BoxIcon::Exclamation});
    catalogue.FillLanguageList(cmbLanguage);
}

TEST_F(CatalogueTest, AnyOtherFailureIsToldInItsOwnWords)
{
    machine.files.FailAt(Operation::OpenForReading, folder + u"Language.dat"_s, 1,
                         FailureNumber::PermissionDenied);
    machine.dialogs.ExpectBox({u"Permission denied"_s, u"Tressel"_s, BoxIcon::Exclamation});
    catalogue.FillLanguageList(cmbLanguage);
}

TEST_F(CatalogueTest, NoPathAndNoFileAreFailures)
{
    EXPECT_EQ(catalogue.LoadLanguage({}), 1);
    EXPECT_EQ(catalogue.LoadLanguage(folder + u"Klingon.lng"_s), 1);
}

TEST_F(CatalogueTest, TextsGoOntoTheControls)
{
    EXPECT_EQ(Load(mark + "013 Uten filtype\r\n112 Fjerner endelsen\r\n"), 0);
    EXPECT_EQ(chkExtension.Caption(), u"Uten filtype"_s);
    EXPECT_EQ(chkExtension.ToolTip(), u"Fjerner endelsen"_s);
}

TEST_F(CatalogueTest, NumberThatWasNeverFilledBlanksItsControl)
{
    EXPECT_EQ(Load(mark), 0);
    EXPECT_EQ(chkExtension.Caption(), QString());
}

TEST_F(CatalogueTest, NumberThatAFileLeavesOutKeepsItsText)
{
    EXPECT_EQ(Load(mark + "013 Uten filtype\r\n"), 0);
    EXPECT_EQ(Load(mark + "012 Lagre\r\n"), 0);
    EXPECT_EQ(chkExtension.Caption(), u"Uten filtype"_s);
    EXPECT_EQ(btnGBSaveFile.Caption(), u"Lagre"_s);
}

TEST_F(CatalogueTest, UnderscoreBreaksTheLine)
{
    EXPECT_EQ(Load(mark + "012 Save_File\r\n"), 0);
    EXPECT_EQ(btnGBSaveFile.Caption(), u"Save\rFile"_s);
}

TEST_F(CatalogueTest, TextStartsInTheFifthColumn)
{
    EXPECT_EQ(Load(mark + "12 Save\r\n"), 0);
    EXPECT_EQ(btnGBSaveFile.Caption(), u"ave"_s);
}

TEST_F(CatalogueTest, WrongMarkLeavesTheWindowAndChangesTheTable)
{
    EXPECT_EQ(Load("000 LANGUAGE FILE v3.0\r\n013 Uten filtype\r\n"), 1);
    EXPECT_EQ(chkExtension.Caption(), u"Remove Ext"_s);
    EXPECT_EQ(catalogue.Text(13), u"Uten filtype"_s);
}

TEST_F(CatalogueTest, MarkCountsWithCase)
{
    EXPECT_EQ(Load("000 Language File v4.0\r\n"), 1);
}

TEST_F(CatalogueTest, MarkOfAnEarlierFileServesOneWithout)
{
    EXPECT_EQ(Load(mark), 0);
    EXPECT_EQ(Load("013 Uten filtype\r\n"), 0);
    EXPECT_EQ(chkExtension.Caption(), u"Uten filtype"_s);
}

TEST_F(CatalogueTest, CommentsAndBlankLinesAreSkipped)
{
    EXPECT_EQ(Load(mark + ";000 wrong\r\n\r\n    \r\n013 Uten filtype\r\n"), 0);
    EXPECT_EQ(chkExtension.Caption(), u"Uten filtype"_s);
}

TEST_F(CatalogueTest, LineThatStartsWithALetterTakesTheMarkAway)
{
    EXPECT_EQ(Load(mark + "abc Text\r\n"), 1);
    EXPECT_EQ(catalogue.Text(0), u"Text"_s);
}

TEST_F(CatalogueTest, EmptyAndCutFilesAreFailures)
{
    EXPECT_EQ(Load({}), 1);
    EXPECT_EQ(Load("000 LANGUAGE FILE"), 1);
}

TEST_F(CatalogueTest, AllNumbersOfThreeDigitsHaveRoom)
{
    QByteArray bytes = mark;
    for (int index = 1; index < 1000; ++index)
        bytes += QByteArray::number(index).rightJustified(3, '0') + " Text\r\n";
    EXPECT_EQ(Load(bytes), 0);
    EXPECT_EQ(catalogue.Text(999), u"Text"_s);
    EXPECT_EQ(NumberThrownBy([&] { catalogue.Text(1000); }), FailureNumber::SubscriptOutOfRange);
}

TEST_F(CatalogueTest, NumberBelowZeroCountsAsAFailure)
{
    EXPECT_EQ(Load(mark + "-12 Text\r\n013 Uten filtype\r\n"), 1);
    EXPECT_EQ(catalogue.Text(13), u"Uten filtype"_s);
}

TEST_F(CatalogueTest, FileOfTheOldCodePageIsRead)
{
    EXPECT_EQ(Load(mark + "013 L\xF8sne\r\n"), 0);
    EXPECT_EQ(chkExtension.Caption(), u"Løsne"_s);
}

TEST_F(CatalogueTest, TooLargeAFileIsAFailure)
{
    EXPECT_EQ(Load(mark + QByteArray(5 << 20, ' ')), 1);
    EXPECT_EQ(chkExtension.Caption(), u"Remove Ext"_s);
}

TEST_F(CatalogueTest, FileThatCannotBeOpenedIsAFailure)
{
    EXPECT_EQ(Load(mark), 0);
    machine.files.FailAt(Operation::OpenForReading, folder + u"Norwegian.lng"_s, 1,
                         FailureNumber::PermissionDenied);
    EXPECT_EQ(catalogue.LoadLanguage(catalogue.FileOf(u"Norwegian"_s)), 1);
}

TEST_F(CatalogueTest, HiddenButtonComesBackWithTheNewToolTip)
{
    btnGBLoadFile.SetToolTip(u"old"_s);
    btnGBLoadFile.FaceShown();
    btnGBLoadFile.FaceHidden();
    EXPECT_EQ(Load(mark + "129 Les inn\r\n"), 0);
    btnGBLoadFile.FaceShown();
    EXPECT_EQ(btnGBLoadFile.ToolTip(), u"Les inn"_s);
}

TEST(LanguageTexts, NoNumberAndNoPlaceIsTakenTwice)
{
    std::set<int> numbers;
    std::set<std::tuple<QString, QString, TextProperty>> places;
    for (const LanguageText &row : LanguageTexts()) {
        EXPECT_TRUE(numbers.insert(row.index).second) << row.index;
        EXPECT_TRUE(places.insert({row.form.toString(), row.control.toString(), row.property}).second)
            << row.index;
        EXPECT_GT(row.index, 0);
        EXPECT_LT(row.index, static_cast<int>(Catalogue::size));
    }
}

} // namespace
