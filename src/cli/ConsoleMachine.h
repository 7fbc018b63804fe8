// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Clipboard.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/Machine.h"
#include "machine/Program.h"
#include "machine/Screen.h"
#include "machine/Shell.h"
#include "machine/Sound.h"
#include "machine/posix/JetDatabases.h"
#include "settings/HiveTree.h"

#include <functional>

namespace tressel {

/// Nothing is heard from a command line.
class SilentSound : public Sound {
public:
    bool Play(const QString &) override { return false; }
};

/// Nothing is opened from a command line.
class NoShell : public Shell {
public:
    bool Open(const QString &, const QString &) override { return false; }
    bool EditText(const QString &) override { return false; }
    bool BrowseFolder(const QString &) override { return false; }
};

class NoClipboard : public Clipboard {
public:
    void SetText(const QString &) override { }
    QString Text() const override { return {}; }
};

class NoScreen : public Screen {
public:
    int Left() const override { return 0; }
    int Top() const override { return 0; }
    int Width() const override { return 0; }
    int Height() const override { return 0; }
};

/// Boxes become lines on standard error; a file dialog answers with what the command line named.
class ConsoleDialogs : public Dialogs {
public:
    /// What the next file dialogs answer with.
    QString namedFile;

    BoxAnswer Show(const MessageBox &box) override;
    void ShowFatal(int number, const QString &description) override;
    std::optional<FileDialogAnswer> OpenFile(const FileDialogRequest &request) override;
    std::optional<FileDialogAnswer> SaveFile(const FileDialogRequest &) override { return {}; }
    std::optional<QString> ChooseFolder(const QString &, const QString &) override { return {}; }
    std::optional<quint32> ChooseColour(quint32) override { return {}; }
    std::optional<FontChoice> ChooseFont(const FontChoice &) override { return {}; }
};

/// The running program, which writes no files of its own: no folder is made for them.
class ProgramWithoutFiles : public Program {
public:
    explicit ProgramWithoutFiles(Program &running)
        : program(running)
    {
    }

    QString Folder() const override { return program.Folder(); }
    QString WritableFolder() const override { return program.Folder(); }
    QString ExecutableName() const override { return program.ExecutableName(); }
    QString CommandLine() const override { return program.CommandLine(); }
    void End(int status) override { program.End(status); }

private:
    Program &program;
};

/// A run's pauses are used to show how far it is and to notice an interruption.
class ConsoleEvents : public Events {
public:
    /// Called at every pause.
    std::function<void()> onPause;

    void LetEventsRun() override
    {
        if (onPause)
            onPause();
    }
    void ShowAnimationStep() override { LetEventsRun(); }
    void KeepPainting() override { LetEventsRun(); }
    void SetBusyPointer(bool) override { }
};

/// What the command line has of a computer: the real disc, settings that last as long as the process,
/// and nothing to see or hear.
class ConsoleMachine {
public:
    ConsoleMachine(FileSystem &files, Clock &clock, Program &program);

    Machine AsMachine();

    MemorySettingsHive hive;
    ConsoleDialogs dialogs;
    ConsoleEvents events;

private:
    FileSystem &files;
    Clock &clock;
    ProgramWithoutFiles program;
    SilentSound sound;
    NoShell shell;
    NoClipboard clipboard;
    NoScreen screen;
    JetDatabases databases{events};
};

} // namespace tressel
