// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Writes the database of the program folder: tressel-make-database > assets/data.mdb

#include "support/SampleDatabase.h"

#include <cstdio>

int main()
{
    const QByteArray bytes = tressel::SampleDatabase();
    const auto length = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, length, stdout) == length && std::fflush(stdout) == 0 ? 0 : 1;
}
