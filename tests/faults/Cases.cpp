// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Cases.h"

#include "settings/HiveText.h"
#include "support/SampleDatabase.h"

#include <QCryptographicHash>

#include <cstdio>
#include <fnmatch.h>
#include <fstream>
#include <sstream>

namespace tressel::faults {

namespace fs = std::filesystem;

namespace {

void Put(const fs::path &file, const std::string &contents)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contents;
}

/// Something of the user's that no case has to do with.
void PutBystander(const fs::path &folder)
{
    Put(folder / "keep.txt", "must stay");
}

// What the cases work on.

void FolderToFill(const fs::path &folder)
{
    PutBystander(folder / "work");
    Put(folder / "names.txt", "One\r\nTwo\\Inner\r\nThree\r\n");
    Put(folder / "files/Four.txt", "4");
    Put(folder / "files/Five.txt", "5");
    const QByteArray database = SampleDatabase();
    Put(folder / "shop.mdb", database.toStdString());
}

void Series(const fs::path &folder)
{
    PutBystander(folder / "work");
    for (const char *name : {"Disk1", "Disk2", "Disk3"})
        fs::create_directories(folder / "work" / name / "Data");
    Put(folder / "work/Disk2/Data/kept.txt", "must stay too");
}

void Music(const fs::path &folder)
{
    Put(folder / "music/one.mp3", "1");
    Put(folder / "music/two.mp3", "2");
    Put(folder / "music/live/three.mp3", "3");
    fs::create_directories(folder / "music/empty");
    fs::create_symlink("/etc", folder / "music/link");
    PutBystander(folder / "lists");
}

void MusicAndItsReport(const fs::path &folder)
{
    Music(folder);
    Put(folder / "lists/music.txt", "an older report");
    fs::permissions(folder / "lists/music.txt", fs::perms::owner_read | fs::perms::owner_write);
}

void Photos(const fs::path &folder)
{
    Put(folder / "photos/first_one.jpeg", "1");
    Put(folder / "photos/second_one.jpeg", "2");
    Put(folder / "photos/third.png", "3");
    Put(folder / "photos/some_folder/fourth.jpeg", "4");
}

std::string Bytes(size_t length)
{
    std::string bytes;
    for (size_t index = 0; index < length; ++index)
        bytes += static_cast<char>('a' + index * index % 23);
    return bytes;
}

const std::string settingsFile = "config/tressel/settings";
const std::string storedValue = "\"Show Tips at Startup\"=\"0\"\n";

constexpr size_t filmLength = 700'000;

void Film(const fs::path &folder)
{
    Put(folder / "film", Bytes(filmLength));
    PutBystander(folder);
}

void Parts(const fs::path &folder)
{
    PutBystander(folder);
    const std::string film = Bytes(filmLength);
    constexpr size_t chunk = 300'000;
    for (size_t number = 1; (number - 1) * chunk < film.size(); ++number)
        Put(folder / ("film." + std::to_string(number)), film.substr((number - 1) * chunk, chunk));
    Put(folder / "film.bat", "COPY /B");
    const QByteArray digest =
        QCryptographicHash::hash(QByteArray::fromStdString(film), QCryptographicHash::Sha256);
    Put(folder / "film.sha256", digest.toHex().toStdString() + "  film\n");
}

void PartsAndFilm(const fs::path &folder)
{
    Parts(folder);
    Put(folder / "film", "an older film");
}

void DamagedParts(const fs::path &folder)
{
    Parts(folder);
    Put(folder / "film.2", Bytes(filmLength).substr(0, 300'000));
}

void Secrets(const fs::path &folder)
{
    Put(folder / "letters/secret.txt", Bytes(10'000));
    Put(folder / "letters/other.txt", "another secret");
    PutBystander(folder / "letters");
}

void SecretOfTwoNames(const fs::path &folder)
{
    Secrets(folder);
    fs::create_hard_link(folder / "letters/secret.txt", folder / "second.txt");
}

void EmptyFolders(const fs::path &folder)
{
    fs::create_directories(folder / "tree/a/b/c");
    fs::create_directories(folder / "tree/d");
    fs::create_directories(folder / "tree/full/e");
    PutBystander(folder / "tree/full");
}

void ListInPlace(const fs::path &folder)
{
    Put(folder / "list.txt", "the old list\r\n");
    PutBystander(folder);
}

void Nothing(const fs::path &folder)
{
    PutBystander(folder);
}

/// So that no tip window stands before the main one.
void Settings(const fs::path &folder)
{
    Put(folder / settingsFile,
        "[Software\\Application Settings\\tressel-faults-window\\Options]\n" + storedValue);
    fs::permissions((folder / settingsFile).parent_path(), fs::perms::owner_all);
}

void DamagedSettings(const fs::path &folder)
{
    Settings(folder);
    std::ofstream(folder / settingsFile, std::ios::app) << "no line of ours\n";
}

// What is said of the folder afterwards. What a kill may leave stands in README.md.

/// The same without some paths, of which then nothing is said.
Evidence Without(Evidence evidence, const std::string &pattern)
{
    const auto matches = [&](const auto &each) {
        return fnmatch(pattern.c_str(), each.first.c_str(), 0) == 0;
    };
    for (Tree *tree : {&evidence.before, &evidence.done, &evidence.now})
        std::erase_if(*tree, matches);
    return evidence;
}

size_t CountLines(const std::string &text, const std::string &pattern)
{
    size_t count = 0;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        count += fnmatch(pattern.c_str(), line.c_str(), 0) == 0 ? 1 : 0;
    return count;
}

/// A report that leaves out what couldn't be read is whole if it has all that its last line tells of.
bool IsWholeWithout(const std::string &report, const std::string &told)
{
    size_t folders = 0;
    size_t files = 0;
    size_t unreadable = 0;
    constexpr int numbers = 3;
    return std::sscanf(told.c_str(), "listed %zu folders, %zu files, unreadable %zu", &folders, &files,
                       &unreadable)
        == numbers
        && unreadable > 0 && report.ends_with("\r\n \r\n") && CountLines(report, "/*") == folders
        && CountLines(report, "   ?*") == files;
}

Finding Replaced(const Evidence &evidence)
{
    return EachWhole(evidence.isKilled ? Without(evidence, "*~tr?????.tmp") : evidence);
}

/// What is found of a part of the evidence, with how far the whole has come.
Finding Overall(const Finding &ofPart, const Evidence &evidence)
{
    if (ofPart.state >= State::Leftover || evidence.now == evidence.done)
        return ofPart;
    return {evidence.now == evidence.before ? State::Untouched : State::PartWay, {}, {}};
}

Finding Reported(const Evidence &evidence)
{
    const auto report = evidence.now.find("lists/music.txt");
    if (report == evidence.now.end() || !IsWholeWithout(report->second.contents, evidence.out))
        return Replaced(evidence);
    Evidence asDone = evidence;
    asDone.now["lists/music.txt"].contents = evidence.done.at("lists/music.txt").contents;
    return Overall(Replaced(asDone), evidence);
}

Finding Split(const Evidence &evidence)
{
    return evidence.isKilled ? Overall(Replaced(Without(evidence, "film.[0-9]*")), evidence)
                             : EachWhole(evidence);
}

/// A file that is to be erased may hold anything as soon as that has begun, but is found by its name or gone.
Finding Erased(const Evidence &evidence)
{
    Evidence others = Without(evidence, "letters/[so]*.txt");
    if (evidence.isKilled)
        others = Without(others, "letters/[0-9a-f]*[0-9a-f]");
    return Overall(EachWhole(others), evidence);
}

Finding SavedAtLast(const Evidence &evidence)
{
    return EachWhole(evidence.isKilled ? Without(evidence, "*/.tressel-settings.tmp") : evidence);
}

/// Whether the settings are what one of several saves has written, with what the user had stored before.
bool AreSettingsWhole(const std::string &settings, const Evidence &evidence)
{
    const QByteArray bytes = QByteArray::fromStdString(settings);
    const HiveReading reading = HiveFromText(bytes);
    const auto before = evidence.before.find(settingsFile);
    const bool keepsValue =
        before == evidence.before.end() || settings.find(storedValue) != std::string::npos;
    return !reading.isDamaged && HiveToText(reading.tree) == bytes && keepsValue;
}

Finding Saved(const Evidence &evidence)
{
    const auto settings = evidence.now.find(settingsFile);
    if (settings != evidence.now.end() && AreSettingsWhole(settings->second.contents, evidence)) {
        Evidence asDone = evidence;
        asDone.now[settingsFile] = evidence.done.at(settingsFile);
        return Overall(SavedAtLast(asDone), evidence);
    }
    return SavedAtLast(evidence);
}

} // namespace

const std::vector<Case> &Cases()
{
    using enum Subject;
    static const std::vector<Case> cases{
        {"create", {"create", "--to", "@/work", "One", "Two\\Inner"}, FolderToFill},
        {"create new", {"create", "--to", "@/new/place", "One", "a:b"}, FolderToFill},
        {"create --list", {"create", "--to", "@/work", "--list", "@/names.txt"}, FolderToFill},
        {"create --names-of", {"create", "--to", "@/work", "--names-of", "@/files"}, FolderToFill},
        {"create --database",
         {"create", "--to", "@/work", "--database", "@/shop.mdb", "--table", "Products", "--field",
          "ProductName"},
         FolderToFill},
        {"series make",
         {"series", "make", "--in", "@/work", "--base", "Disk", "--sub", "Data", "--from", "3", "--to", "5"},
         Series},
        {"series delete",
         {"series", "delete", "--in", "@/work", "--base", "Disk", "--sub", "Data", "--from", "1", "--to",
          "3"},
         Series},
        {"report", {"report", "@/music"}, Music},
        {"report --output", {"report", "@/music", "--output", "@/lists/music.txt"}, Music, Reported},
        {"report --output --force",
         {"report", "@/music", "--output", "@/lists/music.txt", "--force"},
         MusicAndItsReport,
         Reported},
        {"rename case", {"rename", "case", "@/photos", "--upper", "--both"}, Photos},
        {"rename extension", {"rename", "extension", "@/photos", "--from", "jpeg", "--to", "jpg"}, Photos},
        {"rename replace", {"rename", "replace", "@/photos", "--from", "_", "--to", " "}, Photos},
        {"rename, old system", {"rename", "case", "@/photos", "--upper"}, Photos, EachWhole, OldSystem},
        {"report, old system",
         {"report", "@/music", "--output", "@/lists/music.txt"},
         Music,
         Reported,
         OldSystem},
        {"join --force, old system", {"join", "@/film", "--force"}, PartsAndFilm, Replaced, OldSystem},

        {"split", {"split", "@/film", "--size", "300K"}, Film, Split},
        {"split and all", {"split", "@/film", "--count", "2", "--batch", "--checksums"}, Film, Split},
        {"join", {"join", "@/film"}, Parts, Replaced},
        {"join --force --delete-parts",
         {"join", "@/film", "--force", "--delete-parts"},
         PartsAndFilm,
         Replaced},
        {"join of damaged parts", {"join", "@/film"}, DamagedParts, Replaced, CommandLine, 1},
        {"erase", {"erase", "--yes", "@/letters/secret.txt", "@/letters/other.txt"}, Secrets, Erased},
        {"empty list", {"empty", "list", "@/tree"}, EmptyFolders},
        {"empty remove", {"empty", "remove", "@/tree"}, EmptyFolders},
        {"empty remove --cascade", {"empty", "remove", "--cascade", "--self", "@/tree"}, EmptyFolders},
        {"database --tables", {"database", "@/shop.mdb", "--tables"}, FolderToFill},
        {"database --fields", {"database", "@/shop.mdb", "--fields", "Products"}, FolderToFill},
        {"database --values",
         {"database", "@/shop.mdb", "--values", "Products", "ProductName"},
         FolderToFill},
        // What is refused stays as it is, also where a look at it fails.
        {"report onto a file",
         {"report", "@/music", "--output", "@/lists/music.txt"},
         MusicAndItsReport,
         EachWhole,
         CommandLine,
         1},
        {"rename onto a name",
         {"rename", "replace", "@/photos", "--from", "first", "--to", "second"},
         Photos,
         EachWhole,
         CommandLine,
         1},
        {"split over a part", {"split", "@/film", "--size", "300K"}, PartsAndFilm, EachWhole, CommandLine, 1},
        {"join onto a file", {"join", "@/film"}, PartsAndFilm, EachWhole, CommandLine, 1},
        {"erase what is no file",
         {"erase", "--yes", "@/music/link", "@/music/live"},
         Music,
         EachWhole,
         CommandLine,
         1},
        {"erase one of two names",
         {"erase", "--yes", "@/letters/secret.txt"},
         SecretOfTwoNames,
         EachWhole,
         CommandLine,
         1},
        {"list save", {"@/list.txt"}, ListInPlace, Replaced, ListSave},
        {"list save, new", {"@/list.txt"}, Nothing, Replaced, ListSave},
        {"window, settings", {}, Settings, Saved, Window},
        {"window, first start", {}, Nothing, Saved, Window},
        {"window, damaged settings", {}, DamagedSettings, Saved, Window},
    };
    return cases;
}

} // namespace tressel::faults
