// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/StoredKeys.h"

#include "settings/Settings.h"
#include "support/MemoryMachine.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

using enum KeyPlace;
using enum KeyKind;

struct Row {
    KeyEntry key;
    KeyPlace place;
    QString name; ///< of a numbered key what stands before its number
    KeyKind kind;
    Value byDefault;
    std::optional<Value> laterDefault{};
    int first = 0; ///< numbered keys: from first ...
    int last = -1; ///< ... to last
};

// clang-format off: a row is a line
const Row Rows[] = {
    {keys::MainLeft, Main, u"MainLeft"_s, Number, u"0"_s},
    {keys::MainTop, Main, u"MainTop"_s, Number, u"0"_s},
    {keys::MainWidth, Main, u"MainWidth"_s, Number, 8120, 10830},
    {keys::MainHeight, Main, u"MainHeight"_s, Number, 6825, 7860},
    {keys::VisibleItems, Main, u"VisibleItems"_s, Number, u""_s},
    {keys::TabStrip, Main, u"TabStrip"_s, Number, u"2880"_s},
    {keys::IndxBar, Main, u"IndxBar"_s, Number, u"1"_s},
    {keys::Chk, Main, u"chk"_s, Text, u"1"_s, {}, 1, 7},
    {keys::Menu, Main, u"Menu"_s, Text, u"1"_s, {}, 1, 7},
    {keys::RightToLeft, Main, u"RightToLeft"_s, Text, 0},
    {keys::OutlookColors, Main, u"OutlookColors"_s, Number, u"0"_s},
    {keys::CustomColor, Main, u"CustomColor"_s, Text, u"2"_s},
    {keys::Color, Main, u"Color"_s, Text, u""_s, {}, 0, 21},
    {keys::TitleBarFont, Main, u"TitleBarFont"_s, Text, u"0"_s},
    {keys::TitleBarBold, Main, u"TitleBarBold"_s, Text, u"0"_s},
    {keys::TitleBarItalic, Main, u"TitleBarItalic"_s, Text, u"0"_s},
    {keys::TitleBarUnderline, Main, u"TitleBarUnderline"_s, Text, u"0"_s},
    {keys::TitleBarColor, Main, u"TitleBarColor"_s, Text, u"0"_s},
    {keys::TitleBarSize, Main, u"TitleBarSize"_s, Text, u"10"_s},
    {keys::TitleCapFont, Main, u"TitleCapFont"_s, Text, u"0"_s},
    {keys::TitleCapBold, Main, u"TitleCapBold"_s, Text, u"0"_s},
    {keys::TitleCapItalic, Main, u"TitleCapItalic"_s, Text, u"0"_s},
    {keys::TitleCapUnderline, Main, u"TitleCapUnderline"_s, Text, u"0"_s},
    {keys::TitleCapTextCol, Main, u"TitleCapTextCol"_s, Text, u"0"_s},
    {keys::TitleCapSize, Main, u"TitleCapSize"_s, Text, u"10"_s},
    {keys::FilePath, Main, u"FilePath"_s, Text, u"C:\\Tressel"_s},
    {keys::FileExt, Main, u"FileExt"_s, Text, u"1"_s},
    {keys::ButtonBar, Main, u"ButtonBar"_s, Text, u"0"_s},
    {keys::LastFile, Main, u"LastFile"_s, Text, u""_s},
    {keys::LastPath, Main, u"LastPath"_s, Text, u""_s},
    {keys::LastDBPath, Main, u"LastDBPath"_s, Text, u"C:\\Tressel"_s},
    {keys::OpenTXTPath, Main, u"OpenTXTPath"_s, Text, u"C:\\Tressel"_s},
    {keys::OpenDBPath, Main, u"OpenDBPath"_s, Text, u"C:\\Tressel"_s},
    {keys::Separate, Main, u"Separate"_s, Text, u""_s},
    {keys::SearchPath, Main, u"SearchPath"_s, Text, u"C:\\Tressel"_s},
    {keys::DatabaseFile, Main, u"DatabaseFile"_s, Text, u"C:\\Tressel\\data.mdb"_s},
    {keys::SQLString, Main, u"SQLString"_s, Text, u"0"_s},
    {keys::Table, Main, u"Table"_s, Text, u"0"_s},
    {keys::OnlyListFilename, Main, u"OnlyListFilename"_s, Number, 0},
    {keys::GenLastPath, Main, u"GenLastPath"_s, Text, u""_s},
    {keys::LastSavePath, Main, u"LastSavePath"_s, Text, u""_s},
    {keys::ReportFile, Main, u"ReportFile"_s, Text, u""_s},
    {keys::RecentPath, Main, u"RecentPath "_s, Text, u""_s, {}, 0, 4},
    {keys::TotalFileCount, Main, u"TotalFileCount"_s, Text, u"0"_s},
    {keys::ReplaceFrom, Main, u"ReplaceFrom"_s, Text, u""_s},
    {keys::ReplaceTo, Main, u"ReplaceTo"_s, Text, u""_s},
    {keys::ExtAll, Main, u"ExtAll"_s, Text, u""_s},
    {keys::ExtFrom, Main, u"ExtFrom"_s, Text, u""_s},
    {keys::ExtTo, Main, u"ExtTo"_s, Text, u""_s},
    {keys::ButtonStyle, Options, u"ButtonStyle"_s, Number, 3},
    {keys::ShowDigit, Options, u"ShowDigit"_s, Number, 0},
    {keys::DigitType, Options, u"DigitType"_s, Number, 1},
    {keys::EnableAnimation, Options, u"EnableAnimation"_s, Number, 0, 1},
    {keys::AnimHeight, Options, u"AnimHeight"_s, Text, u"500"_s},
    {keys::AnimWidth, Options, u"AnimWidth"_s, Text, u"200"_s},
    {keys::Sound, Options, u"Sound"_s, Number, 0},
    {keys::Language, Options, u"Language"_s, Text, 0},
    {keys::MakeDel, Options, u"MakeDel"_s, Number, u"0"_s},
    {keys::FromDir, Options, u"FromDir"_s, Number, u"1"_s},
    {keys::ToDir, Options, u"ToDir"_s, Number, u"1"_s},
    {keys::Folder, Options, u"Folder"_s, Text, u"Disk"_s},
    {keys::SubFolder, Options, u"SubFolder"_s, Text, u"Sub Folder"_s},
    {keys::LastNumPath, Options, u"LastNumPath"_s, Text, u"C:\\"_s},
    {keys::ShowTips, Program, u"Show Tips at Startup"_s, Text, u"1"_s},
    {keys::WindowLeft, Splitter, u"WindowLeft"_s, Text, u"0"_s},
    {keys::WindowTop, Splitter, u"WindowTop"_s, Text, u"0"_s},
    {keys::SplitSize, Splitter, u"SplitSize"_s, Text, u"1440"_s},
    {keys::SplitCount, Splitter, u"SplitCount"_s, Text, u"2"_s},
    {keys::SplitOption, Splitter, u"SplitOption"_s, Text, u"False"_s},
    {keys::DeleteParts, Splitter, u"DeleteParts"_s, Text, u"1"_s},
    {keys::OpenExplorer, Splitter, u"OpenExplorer"_s, Text, u"1"_s},
    {keys::CopyToFloppy, Splitter, u"CopyToFloppy"_s, Text, u"0"_s},
    {keys::InitDir, Splitter, u"InitDir"_s, Text, u""_s},
    {keys::PresetReplaceFrom, OlderKey, u"ReplaceFrom"_s, Text, u"_"_s},
    {keys::PresetReplaceTo, OlderKey, u"ReplaceTo"_s, Text, u""_s},
    {keys::ProductName, SystemFacts, u"ProductName"_s, Text, u""_s},
    {keys::CurrentVersion, SystemFacts, u"CurrentVersion"_s, Text, u""_s},
    {keys::CurrentBuildNumber, SystemFacts, u"CurrentBuildNumber"_s, Text, u""_s},
    {keys::CSDVersion, SystemFacts, u"CSDVersion"_s, Text, u""_s},
    {keys::RegisteredOwner, SystemFacts, u"RegisteredOwner"_s, Text, u"No Info"_s},
    {keys::RegisteredOrganization, SystemFacts, u"RegisteredOrganization"_s, Text, u"No Info"_s},
};
// clang-format on

} // namespace

QList<StoredKey> StoredKeys()
{
    QList<StoredKey> stored;
    for (const Row &row : Rows) {
        if (row.last < row.first)
            stored += {row.key, row.place, row.name, row.kind, row.byDefault, row.laterDefault};
        for (int number = row.first; number <= row.last; ++number) {
            stored += {row.key.At(number), row.place,     row.name + QString::number(number),
                       row.kind,           row.byDefault, row.laterDefault};
        }
    }
    return stored;
}

QString JournalNameOf(const KeyEntry &key)
{
    MemoryMachine machine;
    Settings(machine.machine).Read(key);
    return machine.journal.About(u"ReadSetting"_s).first();
}

} // namespace tressel
