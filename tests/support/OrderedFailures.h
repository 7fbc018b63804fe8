// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"
#include "support/Operation.h"

#include <QList>

namespace tressel {

/// Failures that a test has ordered: "the 2nd folder made below C:\W fails with 75". Only operations that
/// would have succeeded are counted. An order that never came due fails the test.
class OrderedFailures {
public:
    OrderedFailures() = default;
    ~OrderedFailures();
    OrderedFailures(const OrderedFailures &) = delete;
    OrderedFailures &operator=(const OrderedFailures &) = delete;

    /// The `nth` operation (1 the next one) on the path itself or on anything below it fails; with nth 0
    /// every one does.
    void Order(Operation operation, const QString &path, int nth, FailureNumber number);
    /// Takes all orders back.
    void Clear() { orders.clear(); }

    /// Throws if the operation on this path is one that was ordered to fail. The path is in the plain form:
    /// "c:\a\b", folded, without a separator at its end.
    void Obey(Operation operation, const QString &foldedPath);

private:
    struct FailureOrder {
        Operation operation;
        QString folder; ///< in the plain form
        int nth; ///< 0: every one
        FailureNumber number;
        int seen = 0;
        bool came = false;
    };
    QList<FailureOrder> orders;
};

} // namespace tressel
