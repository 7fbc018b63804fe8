// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/Operation.h"

#include <functional>
#include <vector>

namespace tressel {

/// What other programs do between two steps of a run, as a test has ordered it: "before the 2nd listing of
/// C:\W\a, a link stands there". An order that never came due fails the test.
class OrderedActs {
public:
    OrderedActs() = default;
    ~OrderedActs();
    OrderedActs(const OrderedActs &) = delete;
    OrderedActs &operator=(const OrderedActs &) = delete;

    /// Before the `nth` operation (1 the next one) that is asked for with this path.
    void Order(Operation operation, const QString &path, int nth, std::function<void()> act);
    /// Does what is due before an operation.
    void Do(Operation operation, const QString &path);

private:
    struct Act {
        Operation operation;
        QString path;
        int left; ///< operations up to the one that it comes before
        std::function<void()> act;
    };
    std::vector<Act> acts;
};

} // namespace tressel
