// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Version.h"
#include "forms/FormContext.h"
#include "forms/OptionForm.h"
#include "language/Catalogue.h"
#include "language/Session.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/RunWatch.h"
#include "tools/ToolContext.h"
#include "tools/WorkArea.h"

namespace tressel {

/// What a tool is made from, for a test that needs no more of the program than one tool: a main window with
/// nothing but its work area, the options as they are made, and a watch that hears nothing unless another
/// is given.
class ToolBench {
public:
    explicit ToolBench(const Machine &machine, RunWatch *heardBy = nullptr)
        : settings(machine)
        , catalogue(machine,
                    [this](const QString &name) { return name == options.Name() ? &options : nullptr; })
        , options(machine, settings, catalogue)
        , program{machine, settings, session, clickSound, catalogue, heardBy ? *heardBy : silence, version}
    {
    }

    /// The same with another main window.
    ToolContext On(Form &window)
    {
        return {window, area, program.machine, settings, session, options.Live(), clickSound, program.watch};
    }

    Settings settings;
    Session session;
    Catalogue catalogue;
    OptionForm options;
    const ClickSound &clickSound = options.clickSound;
    RunWatch silence;
    VersionBlock version;
    FormContext program;
    Form form{QStringLiteral("frmMain")};
    WorkArea area{form};
    ToolContext context = On(form);
};

} // namespace tressel
