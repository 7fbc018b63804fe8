// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Cases.h"

#include "Findings.h"
#include "support/SampleDatabase.h"

#include <QCryptographicHash>

#include <fstream>

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

/// A database of several pages.
void LongTable(const fs::path &folder)
{
    PutBystander(folder);
    constexpr std::int64_t rows = 300;
    const QByteArray database = LongDatabase(rows);
    Put(folder / "long.mdb", database.toStdString());
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

template <void (*SetUp)(const fs::path &folder)> void WithSettings(const fs::path &folder)
{
    Settings(folder);
    SetUp(folder / workedIn);
}

void DamagedSettings(const fs::path &folder)
{
    Settings(folder);
    std::ofstream(folder / settingsFile, std::ios::app) << "no line of ours\n";
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
        {"reader --tables", {"database", "@/shop.mdb", "--tables"}, FolderToFill, EachWhole, Reader},
        {"reader --fields",
         {"database", "@/shop.mdb", "--fields", "Products"},
         FolderToFill,
         EachWhole,
         Reader},
        {"reader --values",
         {"database", "@/shop.mdb", "--values", "Products", "ProductName"},
         FolderToFill,
         EachWhole,
         Reader},
        {"reader --values, long",
         {"database", "@/long.mdb", "--values", "Rows", "Name"},
         LongTable,
         EachWhole,
         Reader},
        {"reader, create",
         {"create", "--to", "@/work", "--database", "@/shop.mdb", "--table", "Products", "--field",
          "ProductName"},
         FolderToFill,
         EachWhole,
         Reader},
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
        {"window report",
         {"report", "@/place/music"},
         WithSettings<Music>,
         ReportedInWindow,
         WindowTool,
         0,
         ReportPassesOver},
        {"window split",
         {"split", "@/place/film"},
         WithSettings<Film>,
         SplitInWindow,
         WindowTool,
         0,
         SplitPassesOver},
        {"window join",
         {"join", "@/place/film"},
         WithSettings<PartsAndFilm>,
         JoinedInWindow,
         WindowTool,
         0,
         JoinPassesOver},
        {"window erase",
         {"erase", "@/place/letters"},
         WithSettings<Secrets>,
         ErasedInWindow,
         WindowTool,
         0,
         ErasePassesOver},
        {"window rename",
         {"rename", "@/place/photos"},
         WithSettings<Photos>,
         RenamedInWindow,
         WindowTool,
         0,
         PassesOverAll},
        {"window empty",
         {"empty", "@/place/tree"},
         WithSettings<EmptyFolders>,
         RemovedInWindow,
         WindowTool,
         0,
         PassesOverAll},
    };
    return cases;
}

} // namespace tressel::faults
