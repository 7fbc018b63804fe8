// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/numbered/NumberedTarget.h"

#include "base/Pictures.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// The picture that prints at least this many digits; nothing for a count without one.
std::optional<QString> PictureOf(qsizetype digits)
{
    switch (digits) {
    case 1:
        return u"#"_s;
    case 2:
        return u"0#"_s;
    case 3:
        return u"0##"_s;
    case 4:
        return u"0###"_s;
    default:
        return {};
    }
}

/// The picture of the series' numbers, which is the same for all of them.
std::optional<QString> PictureOf(const NumberedNaming &naming)
{
    return PictureOf(naming.manualPadding ? naming.digit + 1 : naming.toLength);
}

} // namespace

std::optional<QString> NumberedTarget(const FileSystem &files, const NumberedNaming &naming, double number,
                                      NumberedRun run)
{
    const auto picture = PictureOf(naming);
    if (!picture)
        return {};
    const QString printed = FormatPicture(number, *picture);

    QString entry;
    if (naming.sub.isEmpty())
        entry = naming.base + printed;
    else if (!naming.numbersSub)
        entry = naming.base + printed + u'\\' + naming.sub;
    else if (run == NumberedRun::Delete && !naming.manualPadding
             && !naming.folder.endsWith(files.Separator()))
        // Kept: here the delete run leaves out the main folder, and so goes for another folder than was made.
        entry = naming.sub + printed;
    else
        entry = naming.base + u'\\' + naming.sub + printed;
    return JoinPath(files, naming.folder, EntryToPath(files, entry));
}

NumberedSeries::NumberedSeries(const FileSystem &fileSystem, NumberedNaming seriesNaming, std::int32_t first,
                               std::int32_t last, NumberedRun forRun)
    : files(fileSystem)
    , naming(std::move(seriesNaming))
    , run(forRun)
    , next(first)
    // Without a picture no number has a target, however many there are.
    , end(PictureOf(naming) ? std::max(qint64(last) + 1, qint64(first)) : first)
{
}

qint64 NumberedSeries::Count() const
{
    return end - next;
}

std::optional<QString> NumberedSeries::Next()
{
    if (next == end)
        return {};
    return NumberedTarget(files, naming, static_cast<double>(next++), run);
}

} // namespace tressel
