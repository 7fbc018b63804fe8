// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tressel {

void QtClipboard::SetText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

QString QtClipboard::Text() const
{
    return QGuiApplication::clipboard()->text();
}

} // namespace tressel
