// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <vector>

namespace tressel {

/// Names with a number each, to be found again by the name: for very many names, of which each is looked for
/// a few times only. Upper and lower case are told apart.
class NameTable {
public:
    /// For up to so many names.
    explicit NameTable(qsizetype names = 0);

    /// Puts a name in, whose text must outlive this, unless it is there. The number under which it is there.
    qsizetype PutOrFind(QStringView name, qsizetype number);
    /// The number of a name, -1 if it isn't there.
    qsizetype Find(QStringView name) const;

private:
    struct Named {
        QStringView name;
        qsizetype number = -1;
    };
    /// The place where the name stands, or would.
    size_t PlaceOf(QStringView name, quint32 mark) const;

    // Places for names, a power of two and at the least half of them empty. Most names are told apart by
    // their marks, so that a search hardly ever comes to other memory than theirs.
    std::vector<quint32> marks; ///< a part of each name's hash, 0 where none stands
    std::vector<quint32> numbers; ///< where in `all` each name stands
    std::vector<Named> all;
};

} // namespace tressel
