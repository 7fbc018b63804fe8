// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Program.h"
#include "support/Journal.h"

namespace tressel {

/// What leaves MemoryProgram::End: the process would be over. No Failure, so that no handler takes it for
/// one.
struct ProcessEnded {
    int status = 0;
};

class MemoryProgram : public Program {
public:
    explicit MemoryProgram(Journal &journal)
        : journal(journal)
    {
    }
    QString Folder() const override { return folder; }
    QString WritableFolder() const override { return writableFolder; }
    QString ExecutableName() const override { return executableName; }
    QString CommandLine() const override { return commandLine; }
    /// Throws ProcessEnded. Journal: "End" about the status.
    [[noreturn]] void End(int status) override;

    QString folder = QStringLiteral("C:\\Tressel");
    QString writableFolder = QStringLiteral("C:\\Tressel");
    QString executableName = QStringLiteral("Tressel");
    QString commandLine;

private:
    Journal &journal;
};

} // namespace tressel
