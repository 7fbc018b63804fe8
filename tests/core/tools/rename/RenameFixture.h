// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Label.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"
#include "support/ToolBench.h"
#include "support/UserLocale.h"
#include "tools/rename/RenamePage.h"

#include <gtest/gtest.h>

namespace tressel {

/// Writes down what a run tells: "Renamed C:\W\a", "Failed C:\W\b 58", and "Started 2" before them.
class RenameNotes : public RunWatch {
public:
    void Started(qint64 total) override { lines += QStringLiteral("Started %1").arg(total); }
    void Next(const QString &path) override { next += path; }
    void Did(Outcome outcome, const QString &path) override
    {
        lines += (outcome == Outcome::Renamed ? QStringLiteral("Renamed ") : QStringLiteral("Kept ")) + path;
    }
    void Failed(const QString &path, const Failure &failure) override
    {
        lines += QStringLiteral("Failed %1 %2").arg(path).arg(failure.Number());
    }

    QStringList lines;
    QStringList next; ///< what the run came to, one after the other
};

/// The rename tool on a window of its own.
struct RenameTool {
    explicit RenameTool(const Machine &machine)
        : bench(machine, &watch)
    {
        bench.session.AppTitle = QStringLiteral("Brindlekit");
    }

    QString Status() const { return bench.area.lblStatusLine.Caption(); }
    /// The total as the status line tells it after a run.
    static QString Total(int count)
    {
        return QStringLiteral("Total file count is %1 files processed").arg(count);
    }

    RenameNotes watch;
    ToolBench bench;
    RenamePage page{bench.context};
};

struct RenameMachine {
    MemoryMachine machine;
};

/// The tool in the empty folder C:\W.
class RenameFixture : public testing::Test, protected RenameMachine, protected RenameTool {
protected:
    RenameFixture()
        : RenameTool(machine.machine)
    {
        machine.files.PutFolder(QStringLiteral("C:\\W"));
        page.txtCurrentPath.SetText(QStringLiteral("C:\\W"));
    }

    void PutFiles(const QStringList &names)
    {
        for (const QString &name : names)
            machine.files.PutFile(QStringLiteral("C:\\W\\") + name, name.toUtf8());
    }
    void PutFolders(const QStringList &names)
    {
        for (const QString &name : names)
            machine.files.PutFolder(QStringLiteral("C:\\W\\") + name);
    }
    /// What is in the folder, folders with "\" at their end.
    QStringList Names() { return machine.files.Tree(QStringLiteral("C:\\W")); }
    /// All renames that were tried, as "a -> b", and " !58" behind one that failed.
    QStringList Renames()
    {
        QStringList renames;
        for (const JournalEntry &entry : machine.journal.Entries()) {
            if (entry.what != QStringLiteral("Rename"))
                continue;
            const QString failure = entry.failure ? QStringLiteral(" !%1").arg(entry.failure) : QString();
            renames += entry.about.section(u'\\', -1) + QStringLiteral(" -> ")
                + entry.detail.section(u'\\', -1) + failure;
        }
        return renames;
    }
    void ExpectError(const QString &text)
    {
        machine.dialogs.ExpectBox(
            {QStringLiteral("Error: ") + text, QStringLiteral("Brindlekit"), BoxIcon::Exclamation});
    }
    void ExpectUnlocked()
    {
        EXPECT_TRUE(page.txtCurrentPath.IsEnabled());
        EXPECT_TRUE(page.btnGBRename.IsEnabled());
        EXPECT_FALSE(page.btnGBCancel.IsEnabled());
        EXPECT_EQ(page.ProgressBar.Min(), 0);
        EXPECT_EQ(page.ProgressBar.Max(), 2);
        EXPECT_EQ(page.ProgressBar.Value(), 0);
        EXPECT_TRUE(Status().startsWith(QStringLiteral("Total file count is "))) << Status().toStdString();
    }

    UserLocale locale{QLocale::c()};
    /// What stands behind a message about a character that can't be.
    const QString illegalList = QStringLiteral("\r\n \\ / : * ? \" < > |");
};

} // namespace tressel
