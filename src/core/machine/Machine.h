// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

class Clipboard;
class Clock;
class Databases;
class Dialogs;
class Events;
class FileSystem;
class Network;
class Program;
class Screen;
class SettingsHive;
class Shell;
class Sound;

/// What Tressel asks of the computer it runs on, bundled for those who hand it on. A tool takes only
/// the parts it needs. The references stay valid as long as the machine does.
struct Machine {
    FileSystem &files;
    SettingsHive &hive;
    Clock &clock;
    Sound &sound;
    Shell &shell;
    Dialogs &dialogs;
    Events &events;
    Clipboard &clipboard;
    Screen &screen;
    Program &program;
    Databases &databases;
    Network &network;
};

} // namespace tressel
