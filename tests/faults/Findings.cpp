// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Findings.h"

#include "settings/HiveText.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fnmatch.h>
#include <sstream>
#include <vector>

namespace tressel::faults {

namespace {

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

/// What is found of a part of the evidence, with how far the whole has come.
Finding Overall(const Finding &ofPart, const Evidence &evidence)
{
    if (ofPart.state >= State::Leftover || evidence.now == evidence.done)
        return ofPart;
    return {evidence.now == evidence.before ? State::Untouched : State::PartWay, {}, {}};
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

constexpr const char *partPattern = "place/film.[0-9]*"; ///< of the window's split

/// What is found where nothing is said of what some patterns name, and of the settings.
Finding WorkedOn(const Evidence &evidence, const std::vector<std::string> &patterns)
{
    const Evidence all = Without(evidence, "config*");
    Evidence others = all;
    for (const std::string &pattern : patterns)
        others = Without(others, pattern);
    if (evidence.isKilled)
        others = Without(others, "*~tr?????.tmp");
    return Overall(EachWhole(others), all);
}

/// Each name is reached by way of the same with a "_" behind it, where a failure leaves it.
std::string WithoutDetour(std::string path)
{
    for (auto place = path.find("_/"); place != std::string::npos; place = path.find("_/", place))
        path.erase(place, 1);
    return path.ends_with('_') ? path.substr(0, path.size() - 1) : path;
}

} // namespace

Finding Replaced(const Evidence &evidence)
{
    return EachWhole(evidence.isKilled ? Without(evidence, "*~tr?????.tmp") : evidence);
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

Finding Erased(const Evidence &evidence)
{
    Evidence others = Without(evidence, "letters/[so]*.txt");
    if (evidence.isKilled)
        others = Without(others, "letters/[0-9a-f]*[0-9a-f]");
    return Overall(EachWhole(others), evidence);
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

Finding ReportedInWindow(const Evidence &evidence)
{
    return WorkedOn(evidence, {"place/music/List-*.txt"});
}

Finding SplitInWindow(const Evidence &evidence)
{
    for (const auto &[path, entry] : evidence.now) {
        const auto whole = evidence.done.find(path);
        const bool isPart = fnmatch(partPattern, path.c_str(), 0) == 0;
        if (isPart && (whole == evidence.done.end() || !whole->second.contents.starts_with(entry.contents)))
            return {State::Damaged, path + " isn't the beginning of its part", path};
    }
    return WorkedOn(evidence, {partPattern, "place/film.bat"});
}

Finding JoinedInWindow(const Evidence &evidence)
{
    return WorkedOn(evidence, {"place/film"});
}

Finding ErasedInWindow(const Evidence &evidence)
{
    return WorkedOn(evidence, {"place/letters/[so]*.txt"});
}

Finding RenamedInWindow(const Evidence &evidence)
{
    Evidence withoutDetours = evidence;
    withoutDetours.now.clear();
    for (const auto &[path, entry] : evidence.now)
        withoutDetours.now.emplace(WithoutDetour(path), entry);
    return Overall(WorkedOn(withoutDetours, {}), Without(evidence, "config*"));
}

Finding RemovedInWindow(const Evidence &evidence)
{
    return WorkedOn(evidence, {});
}

bool ReportPassesOver(const std::string & /*where*/, int /*error*/, const Evidence &evidence)
{
    return std::ranges::any_of(evidence.now, [](const auto &each) {
        return each.first.starts_with("place/music/List-") && each.second.contents.starts_with("****");
    });
}

bool SplitPassesOver(const std::string &where, int /*error*/, const Evidence & /*evidence*/)
{
    return where == "read disc/place/film";
}

bool JoinPassesOver(const std::string &where, int /*error*/, const Evidence & /*evidence*/)
{
    return where.starts_with("read disc/place/film.");
}

bool ErasePassesOver(const std::string & /*where*/, int error, const Evidence & /*evidence*/)
{
    return error != EACCES && error != EROFS;
}

bool PassesOverAll(const std::string & /*where*/, int /*error*/, const Evidence & /*evidence*/)
{
    return true;
}

} // namespace tressel::faults
