// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Machine.h"
#include "tools/LiveOptions.h"

namespace tressel {

class ClickSound;
class Form;
class RunWatch;
class Settings;
class WorkArea;
struct Session;

/// What every tool of the main window takes: a page and its runs are made from this alone. All of it outlives
/// them.
struct ToolContext {
    Form &form; ///< the main window, in which the page's controls register
    WorkArea &area;
    Machine machine;
    Settings &settings;
    Session &session;
    LiveOptions options; ///< the controls of the options dialog that hold live settings
    const ClickSound &clickSound;
    RunWatch &watch;
};

} // namespace tressel
