// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/NameOrder.h"

#include "base/AsciiCase.h"

#include <algorithm>
#include <compare>
#include <functional>
#include <utility>
#include <vector>

namespace tressel {

namespace {

/// An entry on its way to its place. Most are told apart by one number, without a look at the text.
struct Sorted {
    quint64 start = 0;
    QStringView name; ///< without capitals but those from A to Z, which are passed over where it is read
    qsizetype entry = 0;
};

/// The names in the order in which they came: views of the entries, or of their folded texts.
struct Names {
    std::vector<Sorted> all;
    QStringList folded; ///< of those that aren't ASCII
};

Names NamesOf(const QList<FolderEntry> &entries)
{
    Names names;
    names.all.reserve(static_cast<size_t>(entries.size()));
    for (qsizetype index = 0; index < entries.size(); ++index) {
        const QString &name = entries.at(index).name;
        const bool isAscii = IsAscii(name);
        if (!isAscii)
            names.folded.append(name.toCaseFolded());
        names.all.push_back({0, isAscii ? name : names.folded.constLast(), index});
    }
    return names;
}

/// How many characters all names begin with alike.
qsizetype CommonStart(const std::vector<Sorted> &all)
{
    QStringView common = all.front().name;
    for (const Sorted &each : all) {
        const auto differ =
            std::ranges::mismatch(common, each.name, std::equal_to(), AsciiLower, AsciiLower).in1;
        common.truncate(differ - common.begin());
    }
    return common.size();
}

std::strong_ordering Compare(QStringView one, QStringView other)
{
    return std::lexicographical_compare_three_way(
        one.begin(), one.end(), other.begin(), other.end(),
        [](QChar left, QChar right) { return AsciiLower(left) <=> AsciiLower(right); });
}

/// The first characters as one number that sorts as they do: as many as fit, each in so many bits.
quint64 StartOf(QStringView text, int bits)
{
    constexpr int room = 64;
    quint64 start = 0;
    for (qsizetype at = 0; at < room / bits; ++at)
        start = start << bits | (at < text.size() ? AsciiLower(text.at(at)) : 0);
    return start;
}

/// Puts the entries in the place in which they stand in `all`, each circle of them at once.
void PutInPlace(QList<FolderEntry> &entries, std::vector<Sorted> &all)
{
    for (qsizetype first = 0; first < entries.size(); ++first) {
        const auto entryOf = [&](qsizetype place) -> qsizetype & {
            return all[static_cast<size_t>(place)].entry;
        };
        if (entryOf(first) == first)
            continue;
        FolderEntry aside = std::move(entries[first]);
        qsizetype place = first;
        for (; entryOf(place) != first; place = std::exchange(entryOf(place), place))
            entries[place] = std::move(entries[entryOf(place)]);
        entryOf(place) = place;
        entries[place] = std::move(aside);
    }
}

} // namespace

void SortByName(QList<FolderEntry> &entries)
{
    if (entries.isEmpty())
        return;
    auto [all, folded] = NamesOf(entries);
    const qsizetype common = CommonStart(all);
    const int bits = folded.isEmpty() ? 8 : 16;
    for (Sorted &each : all)
        each.start = StartOf(each.name.sliced(common), bits);
    std::ranges::sort(all, [&](const Sorted &one, const Sorted &other) {
        if (one.start != other.start)
            return one.start < other.start;
        const auto order = Compare(one.name, other.name);
        return order != 0 ? order < 0 : entries.at(one.entry).name < entries.at(other.entry).name;
    });
    PutInPlace(entries, all);
}

} // namespace tressel
