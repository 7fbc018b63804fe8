// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/numbered/NumberedTarget.h"

#include "base/Pictures.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"

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

} // namespace

std::optional<QString> NumberedTarget(const FileSystem &files, const NumberedNaming &naming, double number,
                                      NumberedRun run)
{
    const auto picture = PictureOf(naming.manualPadding ? naming.digit + 1 : naming.toLength);
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

} // namespace tressel
