// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/OrderedActs.h"

#include <gtest/gtest.h>

namespace tressel {

OrderedActs::~OrderedActs()
{
    for (const Act &act : acts) {
        if (act.left > 0) {
            ADD_FAILURE() << "an ordered act never came: before " << qPrintable(OperationName(act.operation))
                          << ' ' << qPrintable(act.path);
        }
    }
}

void OrderedActs::Order(Operation operation, const QString &path, int nth, std::function<void()> act)
{
    acts.push_back({operation, path, nth, std::move(act)});
}

void OrderedActs::Do(Operation operation, const QString &path)
{
    for (Act &act : acts) {
        const bool isMeant = act.operation == operation && act.path.compare(path, Qt::CaseInsensitive) == 0;
        if (isMeant && act.left > 0 && --act.left == 0)
            act.act();
    }
}

} // namespace tressel
