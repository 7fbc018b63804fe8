// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryEvents.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

MemoryEvents::~MemoryEvents()
{
    if (!queue.isEmpty())
        ADD_FAILURE() << queue.size() << " queued acts never had their turn in " << calls
                      << " calls of LetEventsRun";
}

void MemoryEvents::At(int call, std::function<void()> act)
{
    When([this, turn = calls + call] { return calls >= turn; }, std::move(act));
}

void MemoryEvents::When(std::function<bool()> condition, std::function<void()> act)
{
    queue.append({std::move(condition), std::move(act)});
}

void MemoryEvents::LetEventsRun()
{
    ++calls;
    const auto isItsTurn = [](const Queued &queued) { return queued.condition(); };
    // Searched anew after each act, which may queue others or come back here.
    for (auto next = std::find_if(queue.begin(), queue.end(), isItsTurn); next != queue.end();
         next = std::find_if(queue.begin(), queue.end(), isItsTurn)) {
        const std::function<void()> act = queue.takeAt(next - queue.begin()).act;
        act();
    }
}

void MemoryEvents::SetBusyPointer(bool isBusy)
{
    busy = isBusy;
    journal.Note(u"BusyPointer"_s, busy ? u"on"_s : u"off"_s);
}

} // namespace tressel
