// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/JetWriter.h"

namespace tressel {

// How values stand in a file: the small steps of JetWriter. All numbers have their lowest byte first.

void Put(QByteArray &bytes, qsizetype place, quint64 number, int count);
quint64 Get(const QByteArray &bytes, qsizetype place, int count);
QByteArray Number(quint64 number, int count);
QByteArray Utf16(const QString &text);

/// The file's own number for one of fieldTypes.
int KindOf(std::int16_t type);
/// The length that the definition tells of a column.
int LengthOf(const WrittenColumn &column);
/// The bytes that a column takes in each row; none for yes/no.
int FixedLengthOf(const WrittenColumn &column);
/// A value in so many bytes; zeros for a null.
QByteArray FixedBytes(const WrittenColumn &column, const DatabaseValue &value);
/// A text, or some bytes for a binary value.
QByteArray VariableBytes(bool isCompressed, const DatabaseValue &value);

} // namespace tressel
