// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/ClickSound.h"

#include "controls/OptionGroup.h"
#include "language/Routines.h"
#include "machine/Machine.h"
#include "machine/Paths.h"
#include "machine/Program.h"
#include "machine/Sound.h"

namespace tressel {

ClickSound::ClickSound(const Machine &machine, const OptionGroup &soundOption)
    : sound(machine.sound)
    , files(machine.files)
    , program(machine.program)
    , OptSound(soundOption)
{
}

void ClickSound::Play() const
{
    if (OptSound.IsSelected(0))
        PlayClick(sound, JoinPath(files, program.Folder(), QStringLiteral("click.wav")));
}

} // namespace tressel
