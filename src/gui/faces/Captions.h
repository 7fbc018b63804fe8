// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFontMetrics>
#include <QStringList>

namespace tressel {

/// A caption for the toolkit: controls break lines with a carriage return, as language files have it.
inline QString WithLineBreaks(QString caption)
{
    return caption.replace(u'\r', u'\n');
}

/// A caption as it is read: "&" underlines the letter behind it, "&&" is one "&".
inline QString WithoutMnemonic(const QString &caption)
{
    QString plain;
    for (qsizetype place = 0; place < caption.size(); ++place) {
        if (caption[place] == u'&' && ++place == caption.size())
            break;
        plain += caption[place];
    }
    return plain;
}

/// Each line of a text cut to the width, with an ellipsis at its end where it had to be. The flags are those
/// of the toolkit for drawing text.
inline QString ElidedLines(const QFontMetrics &metrics, const QString &text, int width, int flags)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines)
        line = metrics.elidedText(line, Qt::ElideRight, width, flags);
    return lines.join(u'\n');
}

} // namespace tressel
