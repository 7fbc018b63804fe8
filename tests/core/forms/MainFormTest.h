// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "forms/MainForm.h"
#include "forms/OptionForm.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace tressel {

/// The main window with its options on a computer in memory, made but not loaded.
class MainFormTest : public testing::Test {
protected:
    MemoryMachine machine;
    Settings settings{machine.machine};
    Session session;
    OptionForm options;
    MainForm form{machine.machine, settings, session, options};
};

} // namespace tressel
