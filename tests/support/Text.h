// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

/// Text as GoogleTest prints it when an assertion fails.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toUtf8().constData() << '"';
}
