// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

namespace tressel {

class Clock;
class Dialogs;
class Events;
class FileSystem;
class Sound;
struct Session;

// The small routines that all tools share: names, paths, text, the click and the clock.

/// The name with every character that no folder name may hold replaced by "_": / tab : * ? " < > |
/// A "\" stays, so a name keeps its nested folders. Lets pending events run nine times and leaves its
/// result in session.LastFixedName as well.
QString FixFolderName(const QString &name, Events &events, Session &session);

/// True if the path is a folder. A path of up to three characters is never looked up and gives false.
bool FolderPathExists(FileSystem &files, const QString &path);

/// Makes every level of the path but the first piece, from the top down; failures are ignored. False if
/// a level failed, which an existing one does.
bool MakeFolderPath(FileSystem &files, const QString &path);

/// Tries to remove every level of the path but the first piece, from the top down, and ignores failures:
/// what goes is what is empty when its turn comes. False if a level failed.
bool RemoveFolderPath(FileSystem &files, const QString &path);

/// The first character in upper case, and the rest. Fails with 5 for an empty text.
QString UpperFirst(const QString &text);

/// What follows the first occurrence of the marker, counted as if the marker were one character long:
/// the tail of a longer one stays in front. The whole text if there is none. Fails with 6 for a text
/// beyond 32767 characters, as the next two do.
QString TextAfter(const QString &text, const QString &marker);

/// What stands before the first occurrence of the marker; the whole text if there is none.
QString TextBefore(const QString &text, const QString &marker);

/// What stands before the last occurrence of the marker; the whole text if there is none.
QString TextBeforeLast(const QString &text, const QString &marker);

/// True if the part occurs in the text, upper and lower case told apart. An empty text contains nothing.
bool TextContains(const QString &text, const QString &part);

/// Starts to play a sound file and goes on at once. 1 if it plays, 0 if it can't.
std::uint8_t PlayClick(Sound &sound, const QString &file);

/// Shows "Error: " and the text in a box with an exclamation mark, under session.AppTitle.
void ShowError(Dialogs &dialogs, const Session &session, const QString &text);

/// The local time of day in seconds, milliseconds in the fraction.
double SecondsOfDay(const Clock &clock);

} // namespace tressel
