// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

namespace tressel {

/// Where a key lives.
enum class KeyPlace : std::uint8_t {
    Main, ///< main store, key "Main" below the settings root
    Options, ///< main store, key "Options" below the settings root
    Program, ///< application store, the executable's name, section "Options"
    Splitter, ///< application store, the maker's prefix and the application title, section "Settings"
    OlderKey, ///< the older product's key
    SystemFacts, ///< the machine-wide key, which can't be written
};

/// What a key is stored as, whatever its default is of.
enum class KeyKind : std::uint8_t { Text, Number };

/// The value that a reader takes where nothing is stored.
struct KeyDefault {
    enum class Kind : std::uint8_t {
        Text,
        Number,
        ProgramFolder, ///< the program folder, with the text behind it as a name in it if there is one
    };

    constexpr KeyDefault(const char16_t *value) // NOLINT(google-explicit-constructor): rows read like a table
        : text(value)
    {
    }
    constexpr KeyDefault(std::int32_t value) // NOLINT(google-explicit-constructor)
        : kind(Kind::Number)
        , number(value)
    {
    }
    constexpr KeyDefault(Kind valueKind, const char16_t *value)
        : kind(valueKind)
        , text(value)
    {
    }

    Kind kind = Kind::Text;
    QStringView text;
    std::int32_t number = 0;
};

/// One row of the table of keys: what all readers and writers of a key share.
struct KeyEntry {
    KeyPlace place;
    QStringView name; ///< of a numbered key what stands before its number
    KeyKind kind;
    KeyDefault byDefault;
    /// Of the later reader, where it has one of its own. Kept: the two differ.
    std::optional<KeyDefault> laterDefault{};
    int first = 0; ///< numbered keys: their numbers, from first ...
    int last = -1; ///< ... to last
    std::optional<int> number{}; ///< set in what At gives

    /// The numbered key of that number. Fails with 9 for a number that isn't one of the key's.
    KeyEntry At(int keyNumber) const;
    /// The name as it is stored.
    QString StoredName() const;
};

/// The table of all keys. Two of the same name at two places have names of their own here.
namespace keys {

namespace detail {
using enum KeyPlace;
using enum KeyKind;
inline constexpr KeyDefault ProgramFolder{KeyDefault::Kind::ProgramFolder, u""};
inline constexpr KeyDefault DatabaseInFolder{KeyDefault::Kind::ProgramFolder, u"data.mdb"};
constexpr KeyEntry Numbered(KeyEntry entry, int first, int last)
{
    entry.first = first;
    entry.last = last;
    return entry;
}
} // namespace detail
using namespace detail;

// clang-format off: a row is a line

// The main window and its side bar. Distances in twips.
inline constexpr KeyEntry MainLeft{Main, u"MainLeft", Number, u"0"};
inline constexpr KeyEntry MainTop{Main, u"MainTop", Number, u"0"};
inline constexpr KeyEntry MainWidth{Main, u"MainWidth", Number, 8120, 10830};
inline constexpr KeyEntry MainHeight{Main, u"MainHeight", Number, 6825, 7860};
inline constexpr KeyEntry VisibleItems{Main, u"VisibleItems", Number, u""};
inline constexpr KeyEntry TabStrip{Main, u"TabStrip", Number, u"2880"};
inline constexpr KeyEntry IndxBar{Main, u"IndxBar", Number, u"1"};
inline constexpr KeyEntry Chk = Numbered({Main, u"chk", Text, u"1"}, 1, 7);
inline constexpr KeyEntry Menu = Numbered({Main, u"Menu", Text, u"1"}, 1, 7);
inline constexpr KeyEntry RightToLeft{Main, u"RightToLeft", Text, 0};
inline constexpr KeyEntry OutlookColors{Main, u"OutlookColors", Number, u"0"};
inline constexpr KeyEntry CustomColor{Main, u"CustomColor", Text, u"2"};
inline constexpr KeyEntry Color = Numbered({Main, u"Color", Text, u""}, 0, 21);
inline constexpr KeyEntry TitleBarFont{Main, u"TitleBarFont", Text, u"0"};
inline constexpr KeyEntry TitleBarSize{Main, u"TitleBarSize", Text, u"10"};
inline constexpr KeyEntry TitleBarBold{Main, u"TitleBarBold", Text, u"0"};
inline constexpr KeyEntry TitleBarItalic{Main, u"TitleBarItalic", Text, u"0"};
inline constexpr KeyEntry TitleBarUnderline{Main, u"TitleBarUnderline", Text, u"0"};
inline constexpr KeyEntry TitleBarColor{Main, u"TitleBarColor", Text, u"0"};
inline constexpr KeyEntry TitleCapFont{Main, u"TitleCapFont", Text, u"0"};
inline constexpr KeyEntry TitleCapSize{Main, u"TitleCapSize", Text, u"10"};
inline constexpr KeyEntry TitleCapBold{Main, u"TitleCapBold", Text, u"0"};
inline constexpr KeyEntry TitleCapItalic{Main, u"TitleCapItalic", Text, u"0"};
inline constexpr KeyEntry TitleCapUnderline{Main, u"TitleCapUnderline", Text, u"0"};
inline constexpr KeyEntry TitleCapTextCol{Main, u"TitleCapTextCol", Text, u"0"};

// The pages, as they were left.
inline constexpr KeyEntry FilePath{Main, u"FilePath", Text, ProgramFolder};
inline constexpr KeyEntry FileExt{Main, u"FileExt", Text, u"1"};
inline constexpr KeyEntry ButtonBar{Main, u"ButtonBar", Text, u"0"};
inline constexpr KeyEntry LastFile{Main, u"LastFile", Text, u""};
inline constexpr KeyEntry LastPath{Main, u"LastPath", Text, u""};
inline constexpr KeyEntry LastDBPath{Main, u"LastDBPath", Text, ProgramFolder};
inline constexpr KeyEntry OpenTXTPath{Main, u"OpenTXTPath", Text, ProgramFolder};
inline constexpr KeyEntry OpenDBPath{Main, u"OpenDBPath", Text, ProgramFolder};
inline constexpr KeyEntry Separate{Main, u"Separate", Text, u""};
inline constexpr KeyEntry SearchPath{Main, u"SearchPath", Text, ProgramFolder};
inline constexpr KeyEntry DatabaseFile{Main, u"DatabaseFile", Text, DatabaseInFolder};
inline constexpr KeyEntry SQLString{Main, u"SQLString", Text, u"0"};
inline constexpr KeyEntry Table{Main, u"Table", Text, u"0"};
inline constexpr KeyEntry OnlyListFilename{Main, u"OnlyListFilename", Number, 0};
inline constexpr KeyEntry GenLastPath{Main, u"GenLastPath", Text, u""};
inline constexpr KeyEntry LastSavePath{Main, u"LastSavePath", Text, u""};
inline constexpr KeyEntry ReportFile{Main, u"ReportFile", Text, u""};
inline constexpr KeyEntry RecentPath = Numbered({Main, u"RecentPath ", Text, u""}, 0, 4);

// The rename runs.
inline constexpr KeyEntry TotalFileCount{Main, u"TotalFileCount", Text, u"0"};
inline constexpr KeyEntry ReplaceFrom{Main, u"ReplaceFrom", Text, u""};
inline constexpr KeyEntry ReplaceTo{Main, u"ReplaceTo", Text, u""};
inline constexpr KeyEntry ExtAll{Main, u"ExtAll", Text, u""};
inline constexpr KeyEntry ExtFrom{Main, u"ExtFrom", Text, u""};
inline constexpr KeyEntry ExtTo{Main, u"ExtTo", Text, u""};

// The options dialog.
inline constexpr KeyEntry ButtonStyle{Options, u"ButtonStyle", Number, 3};
inline constexpr KeyEntry ShowDigit{Options, u"ShowDigit", Number, 0};
inline constexpr KeyEntry DigitType{Options, u"DigitType", Number, 1};
inline constexpr KeyEntry EnableAnimation{Options, u"EnableAnimation", Number, 0, 1};
inline constexpr KeyEntry AnimHeight{Options, u"AnimHeight", Text, u"500"};
inline constexpr KeyEntry AnimWidth{Options, u"AnimWidth", Text, u"200"};
inline constexpr KeyEntry Sound{Options, u"Sound", Number, 0};
inline constexpr KeyEntry Language{Options, u"Language", Text, 0};

// The numbered-folders page.
inline constexpr KeyEntry MakeDel{Options, u"MakeDel", Number, u"0"};
inline constexpr KeyEntry FromDir{Options, u"FromDir", Number, u"1"};
inline constexpr KeyEntry ToDir{Options, u"ToDir", Number, u"1"};
inline constexpr KeyEntry Folder{Options, u"Folder", Text, u"Disk"};
inline constexpr KeyEntry SubFolder{Options, u"SubFolder", Text, u"Sub Folder"};
inline constexpr KeyEntry LastNumPath{Options, u"LastNumPath", Text, u"C:\\"};

// The tip of the day.
inline constexpr KeyEntry ShowTips{Program, u"Show Tips at Startup", Text, 1};

// The splitter page and, once more, the place of the main window.
inline constexpr KeyEntry WindowLeft{Splitter, u"WindowLeft", Text, u"0"};
inline constexpr KeyEntry WindowTop{Splitter, u"WindowTop", Text, u"0"};
inline constexpr KeyEntry SplitSize{Splitter, u"SplitSize", Text, u"1440"};
inline constexpr KeyEntry SplitCount{Splitter, u"SplitCount", Text, 2};
inline constexpr KeyEntry SplitOption{Splitter, u"SplitOption", Text, u"False"};
inline constexpr KeyEntry DeleteParts{Splitter, u"DeleteParts", Text, 1};
inline constexpr KeyEntry OpenExplorer{Splitter, u"OpenExplorer", Text, 1};
inline constexpr KeyEntry CopyToFloppy{Splitter, u"CopyToFloppy", Text, 0};
inline constexpr KeyEntry InitDir{Splitter, u"InitDir", Text, u""};

// The user's own replace preset.
inline constexpr KeyEntry PresetReplaceFrom{OlderKey, u"ReplaceFrom", Text, u"_"};
inline constexpr KeyEntry PresetReplaceTo{OlderKey, u"ReplaceTo", Text, u""};

// The system and its owner.
inline constexpr KeyEntry ProductName{SystemFacts, u"ProductName", Text, u""};
inline constexpr KeyEntry CurrentVersion{SystemFacts, u"CurrentVersion", Text, u""};
inline constexpr KeyEntry CurrentBuildNumber{SystemFacts, u"CurrentBuildNumber", Text, u""};
inline constexpr KeyEntry CSDVersion{SystemFacts, u"CSDVersion", Text, u""};
inline constexpr KeyEntry RegisteredOwner{SystemFacts, u"RegisteredOwner", Text, u"No Info"};
inline constexpr KeyEntry RegisteredOrganization{SystemFacts, u"RegisteredOrganization", Text, u"No Info"};

// clang-format on

} // namespace keys

} // namespace tressel
