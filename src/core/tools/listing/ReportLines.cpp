// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/ReportLines.h"

namespace tressel {

using namespace Qt::StringLiterals;

QStringList ReportHeader(const ReportStyle &style)
{
    if (style.foldersOnly || !style.namesSetIn)
        return {};
    return {u"************************"_s, u" Start Of File Listing: "_s, u"************************"_s};
}

BlockStart StartOfBlock(const QString &folder, const ReportStyle &style)
{
    if (style.foldersOnly)
        return {{}, folder};
    return {{u" "_s, folder}, {}};
}

QString StartOfFileLine(const ReportStyle &style)
{
    return style.namesSetIn ? u"   "_s : QString();
}

QString FileLine(const QString &name, const ReportStyle &style)
{
    return StartOfFileLine(style) + name;
}

QString EndOfBlock()
{
    return u" "_s;
}

QStringList ReportBlock(const QString &folder, const QList<FolderEntry> &entries, const ReportStyle &style)
{
    auto [lines, begun] = StartOfBlock(folder, style);
    for (const FolderEntry &entry : entries) {
        if (entry.kind != EntryKind::Folder && !style.foldersOnly)
            lines += FileLine(entry.name, style);
    }
    lines += begun + EndOfBlock();
    return lines;
}

} // namespace tressel
