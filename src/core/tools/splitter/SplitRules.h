// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace tressel {

// What a cut decides, as functions of numbers and texts alone. The page counts in 32 and 16 bits and takes
// what doesn't fit for a failure; the functions over qint64 know no such limit.

/// The folder part of a path with its last separator, empty without one, and the name behind it.
QString GetPathPart(const QString &Path, QChar separator);
QString GetFilePart(const QString &Path, QChar separator);

/// The name of a part, from 1 on: the number stands behind the whole name. Works on whole paths too.
QString PartName(const QString &name, qint64 part);
/// The name of the batch file that joins the parts.
QString BatchName(const QString &name);
/// The number of the part that a name names; 0 if it isn't of the form that PartName gives.
qint64 PartNumberOf(const QString &name, const QString &partName);

/// How many parts a cut gives: length / chunk, rounded up. Fails with 11 for a chunk of 0.
qint64 PartsOf(qint64 length, qint64 chunk);
/// The part size of a cut in `count` parts: length / count, rounded to the nearest, halves to even. The
/// parts can be one more or less than `count` with it. Fails with 11 for a count of 0.
qint64 ChunkOf(qint64 length, qint64 count);
/// The same for exactly `count` parts, of which the last takes what is left, be it more than the others.
/// None of them is empty where there is a byte for each.
qint64 ExactChunkOf(qint64 length, qint64 count);

/// The number of the first part whose length no cut would give it beside the others, 0 if there is none.
/// Parts fit where all but the last have one size and the last takes what is left, which is less than one
/// byte a part more, or where the file was dealt out evenly, so that earlier parts have a byte more.
qint64 FirstUnfitPart(const QList<qint64> &lengths);

/// A file's length as the page sees it. Kept: beyond 32 bits it comes out negative.
std::int32_t Length32(qint64 length);
/// The part size that was typed in kilobytes, in bytes. Fails with 13 for a text that is no number and with 6
/// beyond 32 bits.
std::int32_t ChunkOfSize(const QString &kilobytes);
/// The part size for that many parts, as typed. Fails with 13, with 11 for 0 parts and with 6 beyond 32 bits.
std::int32_t ChunkOfCount(std::int32_t length, const QString &count);
/// How many parts are planned. Fails with 11 for a chunk of 0 and with 6 beyond 16 bits.
std::int16_t PlannedParts(std::int32_t length, std::int32_t chunk);

/// "1.43 MB (1464.84 kB)": the size of each of so many parts. Fails with 11 for none.
QString PartSizeText(std::int32_t length, double parts);

/// Seconds since midnight. It has no notion of the date, so a run over midnight takes a negative time.
double GetSecondsToday(const QDateTime &now);
/// ".25", "12.00": seconds with two decimals, and no zero in front of them.
QString SecondsText(double seconds);
/// Date and time of day in the user's own form.
QString DateTimeText(const QDateTime &now);

/// The lines of the batch file that joins the parts without this program. `name` has no folder, so the file
/// works from wherever the parts are.
QStringList JoinBatchLines(const QString &name, qint64 parts, bool deletesParts);
/// The same as the bytes of the file, in which a name has its own bytes.
QByteArray JoinBatchBytes(const QString &name, qint64 parts, bool deletesParts);

} // namespace tressel
