// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tressel {

class FileSystem;
class OpenFile;
enum class Links;

/// The path itself if it is a whole one, else the one that it names in the folder.
QString PathIn(const FileSystem &files, const QString &folder, const QString &path);

/// The length of a file as the page sees it. Fails with 53 if it isn't there.
std::int32_t LengthOf(FileSystem &files, const QString &path);

/// Opens a file for reading and writing and for this run alone; one that isn't there is made, which
/// leaves nothing to read. Takes regular files alone, and what a link leads to only with Links::Follow: all
/// else fails with 75.
std::unique_ptr<OpenFile> OpenOrMake(FileSystem &files, const QString &path, Links links);

/// Files that a run which ended at a failure has left open and held.
using LeftOpen = std::vector<std::unique_ptr<OpenFile>>;

/// Gives a run the room for a whole part. Fails with 9 for a negative size and with 7 if there is no such
/// room.
using RoomMaker = std::function<QByteArray(qint64 bytes)>;

/// Room of the process's own memory, with whatever was in it.
QByteArray MakeRoom(qint64 bytes);

} // namespace tressel
