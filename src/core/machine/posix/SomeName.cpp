// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/SomeName.h"

#include <QRandomGenerator>

namespace tressel {

QByteArray SomeName()
{
    constexpr quint32 numbers = 100'000;
    return "~tr" + QByteArray::number(numbers + QRandomGenerator::global()->bounded(numbers)).sliced(1)
        + ".tmp";
}

} // namespace tressel
