// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Writes the database of the program folder: tressel-make-database > assets/data.mdb
// With a number it writes one with so many rows, to measure with.

#include "support/SampleDatabase.h"

#include <cstdio>
#include <cstdlib>

int main(int count, char **arguments)
{
    const QByteArray bytes =
        count > 1 ? tressel::LongDatabase(std::atoll(arguments[1])) : tressel::SampleDatabase();
    const auto length = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, length, stdout) == length && std::fflush(stdout) == 0 ? 0 : 1;
}
