// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/Keys.h"

#include "base/Failure.h"

namespace tressel {

KeyEntry KeyEntry::At(int keyNumber) const
{
    if (keyNumber < first || keyNumber > last)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    KeyEntry entry = *this;
    entry.number = keyNumber;
    return entry;
}

QString KeyEntry::StoredName() const
{
    return number ? name.toString() + QString::number(*number) : name.toString();
}

} // namespace tressel
