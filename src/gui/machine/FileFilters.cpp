// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/FileFilters.h"

#include "machine/Dialogs.h"

#include <QRegularExpression>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

struct Filter {
    QString label;
    QStringList patterns;
};

QList<Filter> Filters(const QString &filter)
{
    const QStringList parts = filter.split(u'|');
    QList<Filter> filters;
    for (qsizetype part = 0; part + 1 < parts.size(); part += 2)
        filters.append({parts.at(part), parts.at(part + 1).split(u';', Qt::SkipEmptyParts)});
    return filters;
}

} // namespace

QStringList NameFilters(const QString &filter)
{
    QStringList names;
    for (Filter &one : Filters(filter)) {
        one.patterns.replaceInStrings(QRegularExpression(u"^\\*\\.\\*$"_s), u"*"_s);
        names += u"%1 (%2)"_s.arg(one.label, one.patterns.join(u' '));
    }
    return names;
}

int FirstFilter(const FileDialogRequest &request)
{
    const QList<Filter> filters = Filters(request.filter);
    for (int index = 0; IsPattern(request.fileName) && index < filters.size(); ++index) {
        if (filters.at(index).patterns.contains(request.fileName))
            return index;
    }
    if (filters.isEmpty())
        return -1;
    return request.filterIndex >= 1 && request.filterIndex <= filters.size() ? request.filterIndex - 1 : 0;
}

bool IsPattern(const QString &fileName)
{
    return fileName.contains(u'*') || fileName.contains(u'?');
}

} // namespace tressel
