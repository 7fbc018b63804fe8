// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/NameOrder.h"

#include "base/AsciiCase.h"

#include <algorithm>
#include <vector>

namespace tressel {

namespace {

/// An entry on its way to its place. Most are told apart by one number, without a look at the text.
struct Sorted {
    quint64 start = 0;
    QString name; ///< without its capitals
    qsizetype entry = 0;
};

QString Folded(const QString &name)
{
    return IsAscii(name) ? WithAsciiLower(name) : name.toCaseFolded();
}

/// How many characters all names begin with alike.
qsizetype CommonStart(const std::vector<Sorted> &all)
{
    QStringView common = all.front().name;
    for (const Sorted &each : all) {
        const auto differ = std::ranges::mismatch(common, each.name).in1;
        common.truncate(differ - common.begin());
    }
    return common.size();
}

/// The first four characters as one number that sorts as they do.
quint64 StartOf(QStringView text)
{
    quint64 start = 0;
    for (qsizetype at = 0; at < 4; ++at)
        start = start << 16 | (at < text.size() ? text.at(at).unicode() : 0);
    return start;
}

} // namespace

void SortByName(QList<FolderEntry> &entries)
{
    if (entries.isEmpty())
        return;
    std::vector<Sorted> all;
    all.reserve(static_cast<size_t>(entries.size()));
    for (qsizetype index = 0; index < entries.size(); ++index)
        all.push_back({0, Folded(entries.at(index).name), index});
    const qsizetype common = CommonStart(all);
    for (Sorted &each : all)
        each.start = StartOf(QStringView(each.name).sliced(common));
    std::ranges::sort(all, [&](const Sorted &one, const Sorted &other) {
        if (one.start != other.start)
            return one.start < other.start;
        const int order = one.name.compare(other.name);
        return order != 0 ? order < 0 : entries.at(one.entry).name < entries.at(other.entry).name;
    });
    QList<FolderEntry> sorted;
    sorted.reserve(entries.size());
    for (const Sorted &each : all)
        sorted.append(std::move(entries[each.entry]));
    entries = std::move(sorted);
}

} // namespace tressel
