// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Clipboard.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/Machine.h"
#include "machine/Network.h"
#include "machine/Program.h"
#include "machine/Screen.h"
#include "machine/Shell.h"
#include "machine/Sound.h"
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

/// Nothing is fetched for a command line.
class NoNetwork : public Network {
public:
    bool IsOnline() override { return false; }
    std::optional<QString> FetchText(const QString &) override { return QString(); }
    void Cancel() override { }
};

class NoScreen : public Screen {
public:
    int Left() const override { return 0; }
    int Top() const override { return 0; }
    int Width() const override { return 0; }
    int Height() const override { return 0; }
};

/// What ends a command whose run asks for something that the command line didn't tell. No Failure, so that no
/// run takes it for one of its own.
struct Unanswered {
    QString question;
};

/// Where a run would ask its user. A command says beforehand what it answers; what it wasn't told of ends it.
class ConsoleDialogs : public Dialogs {
public:
    /// The answer to a box; nothing for one that the command knows nothing of.
    std::function<std::optional<BoxAnswer>(const MessageBox &)> onBox;

    BoxAnswer Show(const MessageBox &box) override;
    /// Throws the failure on: it ends the command.
    void ShowFatal(int number, const QString &description) override;
    std::optional<FileDialogAnswer> OpenFile(const FileDialogRequest &request) override;
    std::optional<FileDialogAnswer> SaveFile(const FileDialogRequest &request) override;
    std::optional<QString> ChooseFolder(const QString &prompt, const QString &folder) override;
    std::optional<quint32> ChooseColour(quint32 colour) override;
    std::optional<FontChoice> ChooseFont(const FontChoice &font) override;
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

/// Nothing but the run goes on: a signal is noticed between two steps.
class NoEvents : public Events {
public:
    void LetEventsRun() override { }
    void ShowAnimationStep() override { }
    void KeepPainting() override { }
    void SetBusyPointer(bool) override { }
};

/// What the command line has of a computer: disc, clock and databases, settings that last as long as the
/// process, and nothing to see or hear.
class ConsoleMachine {
public:
    ConsoleMachine(FileSystem &files, Clock &clock, Program &program, Databases &databases);

    Machine AsMachine();

    ConsoleDialogs dialogs;

private:
    FileSystem &files;
    Clock &clock;
    Databases &databases;
    ProgramWithoutFiles program;
    MemorySettingsHive hive;
    NoEvents events;
    SilentSound sound;
    NoShell shell;
    NoClipboard clipboard;
    NoScreen screen;
    NoNetwork network;
};

} // namespace tressel
