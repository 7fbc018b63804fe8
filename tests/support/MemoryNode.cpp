// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryNode.h"

#include <QStringList>

namespace tressel {

QString FoldedPath(const MemoryNode &node)
{
    QStringList names;
    for (const MemoryNode *level = &node; level; level = level->parent)
        names.prepend(level->name);
    return names.join(u'\\').toCaseFolded();
}

} // namespace tressel
