// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

namespace tressel {

class Clock;
class Dialogs;
class Sound;
struct Session;

// The small routines that all tools share and that aren't about text or paths: the click, the error box and
// the clock.

/// Starts to play a sound file and goes on at once. 1 if it plays, 0 if it can't.
std::uint8_t PlayClick(Sound &sound, const QString &file);

/// Shows "Error: " and the text in a box with an exclamation mark, under session.AppTitle.
void ShowError(Dialogs &dialogs, const Session &session, const QString &text);

/// The local time of day in seconds, milliseconds in the fraction.
double SecondsOfDay(const Clock &clock);

} // namespace tressel
