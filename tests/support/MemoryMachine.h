// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Machine.h"
#include "support/Journal.h"
#include "support/MemoryClipboard.h"
#include "support/MemoryClock.h"
#include "support/MemoryDatabases.h"
#include "support/MemoryDialogs.h"
#include "support/MemoryEvents.h"
#include "support/MemoryFileSystem.h"
#include "support/MemoryHive.h"
#include "support/MemoryNetwork.h"
#include "support/MemoryProgram.h"
#include "support/MemoryScreen.h"
#include "support/MemoryShell.h"
#include "support/MemorySound.h"

namespace tressel {

/// A computer in memory for tests: it keeps a journal of what it was asked, and does what the test set up.
/// At its start it has the drive C: with the program folder C:\Tressel in it, which has a database with the
/// table Products and a list of no languages, and an empty hive.
struct MemoryMachine {
    MemoryMachine()
    {
        files.PutFolder(program.folder);
        files.PutFile(program.folder + QStringLiteral("\\Lang\\Language.dat"));
        databases.PutTexts(program.folder + QStringLiteral("\\data.mdb"), QStringLiteral("Products"),
                           QStringLiteral("Name"), {QStringLiteral("Chair"), QStringLiteral("Table")});
    }
    MemoryMachine(const MemoryMachine &) = delete;
    MemoryMachine &operator=(const MemoryMachine &) = delete;

    Journal journal;
    MemoryClock clock;
    MemoryFileSystem files{journal, clock};
    MemoryHive hive{journal};
    MemorySound sound{journal};
    MemoryShell shell{journal};
    MemoryDialogs dialogs{journal};
    MemoryEvents events{journal};
    MemoryClipboard clipboard{journal};
    MemoryScreen screen;
    MemoryProgram program{journal};
    MemoryDatabases databases{journal};
    MemoryNetwork network{journal};

    /// The same with another disc, or with other settings; good for as long as this and they live.
    Machine With(FileSystem &disc) { return With(disc, hive); }
    Machine With(FileSystem &disc, SettingsHive &settings)
    {
        return {disc,   settings,  clock,  sound,   shell,     dialogs,
                events, clipboard, screen, program, databases, network};
    }

    /// The same as the tools see it; good for as long as this lives.
    Machine machine = With(files);
};

} // namespace tressel
