// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtEvents.h"

#include "faces/FaceUpdates.h"
#include "machine/BusyCursor.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace tressel {

namespace {

using namespace std::chrono_literals;

constexpr QtEvents::Time shortestRest = 20ms;
// A click that is served may open a dialog; the minutes it stays up say nothing of the pump's own cost.
constexpr QtEvents::Time longestRest = 500ms;

} // namespace

QtEvents::QtEvents(FaceUpdates &faceUpdates, BusyCursor &busyCursor, std::function<Time()> steadyClock)
    : updates(faceUpdates)
    , cursor(busyCursor)
    , clock(std::move(steadyClock))
{
}

void QtEvents::LetEventsRun()
{
    const Time begin = clock();
    if (begin < resumeAt)
        return;
    updates.Flush();
    QCoreApplication::processEvents();
    const Time end = clock();
    resumeAt = end + std::clamp(4 * (end - begin), shortestRest, longestRest);
}

void QtEvents::ShowAnimationStep()
{
    updates.Flush();
    QCoreApplication::processEvents();
}

void QtEvents::KeepPainting()
{
    updates.Flush();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtEvents::SetBusyPointer(bool busy)
{
    cursor.SetBusy(busy);
}

QtEvents::Time QtEvents::SteadyTime()
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

} // namespace tressel
