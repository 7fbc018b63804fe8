// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryProgram.h"

namespace tressel {

void MemoryProgram::End(int status)
{
    journal.Note(QStringLiteral("End"), QString::number(status));
    throw ProcessEnded{status};
}

} // namespace tressel
