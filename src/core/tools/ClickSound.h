// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

class FileSystem;
class OptionGroup;
class Program;
class Sound;
struct Machine;

/// The sound with which every button answers.
class ClickSound {
public:
    ClickSound(const Machine &machine, const OptionGroup &OptSound);

    /// Plays the program folder's click.wav if entry 0 of OptSound is selected, and goes on at once.
    void Play() const;

private:
    Sound &sound;
    const FileSystem &files;
    const Program &program;
    const OptionGroup &OptSound;
};

} // namespace tressel
