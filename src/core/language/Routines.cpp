// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/Routines.h"

#include "language/Session.h"
#include "machine/Clock.h"
#include "machine/Dialogs.h"
#include "machine/Sound.h"

namespace tressel {

using namespace Qt::StringLiterals;

std::uint8_t PlayClick(Sound &sound, const QString &file)
{
    return sound.Play(file) ? 1 : 0;
}

void ShowError(Dialogs &dialogs, const Session &session, const QString &text)
{
    dialogs.Show({u"Error: "_s + text, session.AppTitle, BoxIcon::Exclamation});
}

double SecondsOfDay(const Clock &clock)
{
    const QTime now = clock.Now().time();
    return (now.hour() * 3600000.0 + now.minute() * 60000.0 + now.second() * 1000.0 + now.msec()) / 1000.0;
}

} // namespace tressel
