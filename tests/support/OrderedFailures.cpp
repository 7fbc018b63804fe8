// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/OrderedFailures.h"

#include <gtest/gtest.h>

namespace tressel {

OrderedFailures::~OrderedFailures()
{
    for (const FailureOrder &order : orders) {
        if (!order.came) {
            ADD_FAILURE() << "an ordered failure never came: " << qPrintable(OperationName(order.operation))
                          << ' ' << qPrintable(order.folder);
        }
    }
}

void OrderedFailures::Order(Operation operation, const QString &path, int nth, FailureNumber number)
{
    QString folder = path.toCaseFolded();
    while (folder.endsWith(u'\\'))
        folder.chop(1);
    orders.append({operation, folder, nth, number});
}

void OrderedFailures::Obey(Operation operation, const QString &foldedPath)
{
    for (FailureOrder &order : orders) {
        const bool isInside = foldedPath.startsWith(order.folder)
            && (foldedPath.size() == order.folder.size() || foldedPath.at(order.folder.size()) == u'\\');
        if (order.operation != operation || !isInside)
            continue;
        ++order.seen;
        if (order.nth == 0 || order.nth == order.seen) {
            order.came = true;
            throw Failure(order.number);
        }
    }
}

} // namespace tressel
