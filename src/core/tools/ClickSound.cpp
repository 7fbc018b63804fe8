// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/ClickSound.h"

#include "controls/OptionGroup.h"
#include "language/Language.h"
#include "machine/Paths.h"
#include "machine/Program.h"
#include "machine/Sound.h"

namespace tressel {

ClickSound::ClickSound(Sound &soundDevice, const FileSystem &fileSystem, const Program &runningProgram,
                       const OptionGroup &soundOption)
    : sound(soundDevice)
    , files(fileSystem)
    , program(runningProgram)
    , OptSound(soundOption)
{
}

void ClickSound::Play() const
{
    if (OptSound.IsSelected(0))
        PlayClick(sound, JoinPath(files, program.Folder(), QStringLiteral("click.wav")));
}

} // namespace tressel
