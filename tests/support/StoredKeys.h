// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Numbers.h"
#include "settings/Keys.h"

#include <QList>
#include <QString>

#include <optional>

namespace tressel {

/// A key of the settings as it is told to those who look into the store.
struct StoredKey {
    KeyEntry key; ///< the program's word for it
    KeyPlace place;
    QString name;
    KeyKind kind;
    Value byDefault; ///< where the program folder is C:\Tressel
    std::optional<Value> laterDefault; ///< of the second reader, where it differs
};

/// All of them, the numbered ones one by one.
QList<StoredKey> StoredKeys();

/// What the journal of a memory machine tells of reading and writing that key.
QString JournalNameOf(const KeyEntry &key);

} // namespace tressel
