// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/NameOrder.h"

#include "base/AsciiCase.h"

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

namespace tressel {

namespace {

/// An entry on its way to its place. Most are told apart by one number, without a look at the text.
struct Sorted {
    quint64 start = 0;
    size_t entry = 0;
};

QString Folded(const QString &name)
{
    return IsAscii(name) ? WithAsciiLower(name) : name.toCaseFolded();
}

/// The names without their capitals, most of which stay where they are.
class FoldedNames {
public:
    explicit FoldedNames(const QList<FolderEntry> &entries)
    {
        names.reserve(static_cast<size_t>(entries.size()));
        for (const FolderEntry &entry : entries)
            names.push_back(IsAsciiWithoutCapitals(entry.name) ? QStringView(entry.name) : Keep(entry.name));
    }
    const std::vector<QStringView> &All() const { return names; }

private:
    QStringView Keep(const QString &name) { return kept.emplace_back(Folded(name)); }

    std::deque<QString> kept;
    std::vector<QStringView> names;
};

/// How many characters all names begin with alike.
qsizetype CommonStart(const std::vector<QStringView> &names)
{
    QStringView common = names.front();
    for (const QStringView name : names) {
        const qsizetype most = std::min(common.size(), name.size());
        qsizetype alike = 0;
        while (alike < most && common[alike] == name[alike])
            ++alike;
        common.truncate(alike);
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
    const FoldedNames folded(entries);
    const std::vector<QStringView> &names = folded.All();
    const qsizetype common = CommonStart(names);
    std::vector<Sorted> all;
    all.reserve(names.size());
    for (const QStringView name : names)
        all.push_back({StartOf(name.sliced(common)), all.size()});
    const auto nameOf = [&](const Sorted &each) -> const QString & {
        return entries.at(static_cast<qsizetype>(each.entry)).name;
    };
    std::ranges::sort(all, [&](const Sorted &one, const Sorted &other) {
        if (one.start != other.start)
            return one.start < other.start;
        const int order = names[one.entry].compare(names[other.entry]);
        return order != 0 ? order < 0 : nameOf(one) < nameOf(other);
    });
    QList<FolderEntry> sorted;
    sorted.reserve(entries.size());
    for (const Sorted &each : all)
        sorted.append(std::move(entries[static_cast<qsizetype>(each.entry)]));
    entries = std::move(sorted);
}

} // namespace tressel
