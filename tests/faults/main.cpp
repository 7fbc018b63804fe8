// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The fault bench: README.md beside this file says what it does and how it is called.

#include "Sweep.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string_view>
#include <vector>

using namespace tressel::faults;

namespace {

struct Column {
    const char *title;
    Verdict verdict;
};

constexpr Column ofFaults[]{
    {"done", Verdict::Done},          {"told", Verdict::Told},
    {"silent", Verdict::Silent},      {"false success", Verdict::FalseSuccess},
    {"crash", Verdict::Crash},        {"half-written", Verdict::HalfWritten},
    {"no reason", Verdict::NoReason}, {"gave up", Verdict::GaveUp},
    {"leftover", Verdict::Leftover},
};

constexpr Column ofKills[]{
    {"new", Verdict::Done},          {"old", Verdict::Untouched},
    {"part way", Verdict::PartWay},  {"half-written", Verdict::HalfWritten},
    {"leftover", Verdict::Leftover}, {"false success", Verdict::FalseSuccess},
    {"told", Verdict::Told},
};

/// A short sweep goes to one of so many points; of the window, which takes longest to start, to fewer.
constexpr int shortStride = 3;
constexpr int shortStrideOfWindow = 12;

struct Wishes {
    bool isShort = false;
    bool kills = false;
    std::vector<std::string_view> names; ///< parts of the cases' names; all cases if there is none
};

Wishes WishesOf(int count, char **arguments)
{
    Wishes wishes;
    for (int index = 1; index < count; ++index) {
        const std::string_view word = arguments[index];
        if (word == "--short")
            wishes.isShort = true;
        else if (word == "--kill")
            wishes.kills = true;
        else
            wishes.names.push_back(word);
    }
    return wishes;
}

bool HasWindow(const Case &subject)
{
    return subject.subject == Subject::Window || subject.subject == Subject::WindowTool;
}

bool IsWanted(const Case &subject, const Wishes &wishes)
{
    const auto isNamed = [&](std::string_view part) { return subject.name.find(part) != std::string::npos; };
    if (HasWindow(subject) && std::strlen(TRESSEL_WINDOW) == 0)
        return false;
    return wishes.names.empty() || std::ranges::any_of(wishes.names, isNamed);
}

/// A short sweep starts the window, which takes longest, for the likeliest faults alone.
bool IsInShortSweep(const Fault &fault, const Case &subject)
{
    const bool isOfTool = fault.kind == Kind::Rename || fault.kind == Kind::Rmdir;
    const bool isOfWindow = fault.kind == Kind::Write || (isOfTool && subject.subject == Subject::WindowTool);
    return fault.isInShortSweep && (isOfWindow || !HasWindow(subject));
}

std::vector<Fault> FaultsOf(const Case &subject, const Wishes &wishes)
{
    if (wishes.kills)
        return {Kill()};
    std::vector<Fault> faults;
    std::ranges::copy_if(AllFaults(), std::back_inserter(faults), [&](const Fault &fault) {
        return !wishes.isShort || IsInShortSweep(fault, subject);
    });
    return faults;
}

int StrideOf(const Case &subject, const Wishes &wishes)
{
    if (!wishes.isShort)
        return 1;
    return HasWindow(subject) ? shortStrideOfWindow : shortStride;
}

void PrintHead(std::span<const Column> columns)
{
    std::printf("%-30s %6s", "", "points");
    for (const Column &column : columns)
        std::printf("  %s", column.title);
    std::printf("\n");
}

void PrintRow(const Row &row, std::span<const Column> columns)
{
    std::printf("%-30s %6d", row.name.c_str(), row.points);
    for (const Column &column : columns)
        std::printf("  %*d", static_cast<int>(std::strlen(column.title)),
                    row.counts.at(static_cast<std::size_t>(column.verdict)));
    std::printf("\n");
    for (const std::string &mistake : row.mistakes)
        std::printf("    %s\n", mistake.c_str());
    std::fflush(stdout);
}

void AddTo(Row &total, const Row &row)
{
    total.points += row.points;
    for (std::size_t index = 0; index < total.counts.size(); ++index)
        total.counts.at(index) += row.counts.at(index);
}

} // namespace

int main(int count, char **arguments)
{
    const Wishes wishes = WishesOf(count, arguments);
    const std::span<const Column> columns = wishes.kills ? std::span<const Column>(ofKills) : ofFaults;
    PrintHead(columns);
    Bench bench;
    Row total{"all", 0, {}, {}};
    bool isSound = true;
    for (const Case &subject : Cases()) {
        if (!IsWanted(subject, wishes))
            continue;
        const Row row = Sweep(bench, subject, FaultsOf(subject, wishes), StrideOf(subject, wishes));
        PrintRow(row, columns);
        AddTo(total, row);
        isSound = isSound && row.mistakes.empty();
    }
    PrintRow(total, columns);
    return isSound && total.points > 0 ? 0 : 1;
}
