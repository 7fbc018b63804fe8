// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Machine.h"

namespace tressel {

class Catalogue;
class ClickSound;
class RunWatch;
class Settings;
struct Session;
struct VersionBlock;

/// What every form of the program takes: the one root's things, of which there is one each. All of it
/// outlives the forms.
struct FormContext {
    Machine machine;
    Settings &settings;
    Session &session;
    const ClickSound &clickSound;
    const Catalogue &catalogue;
    RunWatch &watch; ///< hears what the tools' runs do
    const VersionBlock &version;
};

} // namespace tressel
