// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "forms/MainForm.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"
#include "support/ToolBench.h"

#include <gtest/gtest.h>

namespace tressel {

/// The main window with its options on a computer in memory, made but not loaded.
class MainFormTest : public testing::Test {
protected:
    MemoryMachine machine;
    ToolBench bench{machine.machine};
    Settings &settings = bench.settings;
    Session &session = bench.session;
    OptionForm &options = bench.options;
    MainForm form{bench.program, options};
};

} // namespace tressel
