// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceUpdates.h"
#include "machine/BusyCursor.h"
#include "machine/CanberraSound.h"
#include "machine/Machine.h"
#include "machine/QtClipboard.h"
#include "machine/QtDialogs.h"
#include "machine/QtEvents.h"
#include "machine/QtNetwork.h"
#include "machine/QtScreen.h"
#include "machine/posix/JetDatabases.h"
#include "machine/posix/PosixClock.h"
#include "machine/posix/PosixFileSystem.h"
#include "machine/posix/PosixShell.h"

namespace tressel {

/// What the program with a window has of a computer: the real disc, and the desktop.
class DesktopMachine {
public:
    /// Both must outlive the machine.
    DesktopMachine(Program &program, SettingsHive &hive);

    Machine AsMachine();

    FaceUpdates updates; ///< of the windows that this machine's events refresh
    QtScreen screen;

private:
    Program &program;
    SettingsHive &hive;
    BusyCursor cursor;
    PosixFileSystem files;
    PosixClock clock;
    CanberraSound sound;
    PosixShell shell;
    QtDialogs dialogs;
    QtEvents events;
    QtClipboard clipboard;
    QtNetwork network;
    JetDatabases databases;
};

} // namespace tressel
