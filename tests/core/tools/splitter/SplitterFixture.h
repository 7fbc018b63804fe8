// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/MemoryMachine.h"
#include "support/Text.h"
#include "support/ToolBench.h"
#include "tools/splitter/SplitterPage.h"

#include <gtest/gtest.h>

namespace tressel {

/// Keeps what a run told.
class KeptWatch : public RunWatch {
public:
    void Started(qint64 total) override { lines += QStringLiteral("started %1").arg(total); }
    void Did(Outcome outcome, const QString &path) override
    {
        static const QStringList outcomes{QStringLiteral("made"),    QStringLiteral("already there"),
                                          QStringLiteral("renamed"), QStringLiteral("rewrote"),
                                          QStringLiteral("removed"), QStringLiteral("not there"),
                                          QStringLiteral("kept"),    QStringLiteral("found")};
        lines += outcomes.at(static_cast<int>(outcome)) + u' ' + path;
    }
    void Failed(const QString &path, const Failure &failure) override
    {
        lines += QStringLiteral("failed %1 %2").arg(failure.Number()).arg(path);
    }
    QStringList lines;
};

struct WithKeptWatch {
    KeptWatch watch;
};

/// The splitter on a form of its own, without the click sound.
struct SplitterTool : WithKeptWatch, ToolBench {
    explicit SplitterTool(const Machine &machine)
        : ToolBench(machine, &watch)
    {
        options.OptSound.Select(1);
        page.cmbSplitSize.SetText(QStringLiteral("1"));
        page.txtSplitCount.SetText(QStringLiteral("2"));
    }

    void Queue(const QStringList &paths)
    {
        for (const QString &path : paths)
            page.cboFileName.AddItem(path);
        page.cboFileName.SetText(paths.constLast());
    }
    void CutByCount(const QString &count)
    {
        page.optSplit.Select(SplitterPage::FileCount);
        page.txtSplitCount.SetText(count);
    }
    void Split() { page.btnGBSplitFile.UserClicks(); }
    void Join() { page.btnGBJoinFile.UserClicks(); }
    QString Count() const { return page.lblFileCount.Caption(); }
    QString Status() const { return area.lblStatusLine.Caption(); }

    SplitterPage page{context};
};

struct SplitterMachine {
    MemoryMachine machine;
};

/// The tool on a memory machine.
class SplitterFixture : public testing::Test, protected SplitterMachine, protected SplitterTool {
protected:
    SplitterFixture()
        : SplitterTool(machine.machine)
    {
    }

    /// Makes a file of so many bytes, each different from the one before it, and puts it into the page.
    void Choose(const QString &path, qsizetype length)
    {
        machine.files.PutFile(path, Contents(length));
        Queue({path});
    }
    static QByteArray Contents(qsizetype length)
    {
        QByteArray bytes(length, Qt::Uninitialized);
        for (qsizetype index = 0; index < length; ++index)
            bytes[index] = static_cast<char>((index * 7 + index / 251) % 256);
        return bytes;
    }
    QStringList Tree(const QString &folder = QStringLiteral("C:\\W")) { return machine.files.Tree(folder); }
    QByteArray Bytes(const QString &path) { return machine.files.Bytes(path); }
    /// The parts of a file on end, from 1 to the first that isn't there.
    QByteArray Parts(const QString &path)
    {
        QByteArray all;
        for (int part = 1; machine.files.Exists(path + u'.' + QString::number(part)); ++part)
            all += Bytes(path + u'.' + QString::number(part));
        return all;
    }
    void ExpectReadError(const QString &text)
    {
        machine.dialogs.ExpectBox({text, QStringLiteral("File Read Error"), BoxIcon::Critical});
    }
    void ExpectCopyFailed(const QString &part)
    {
        machine.dialogs.ExpectBox({QStringLiteral("Unable to copy %1 to  A:\\%1").arg(part),
                                   QStringLiteral("File Copy Failed"), BoxIcon::Critical});
    }
    /// The page as it stands in the middle of a run.
    bool IsShut() const
    {
        return machine.events.IsBusy() && !page.btnGBSplitFile.IsEnabled() && !page.btnGBJoinFile.IsEnabled()
            && !page.txtSplitCount.IsEnabled() && !page.cmbSplitSize.IsEnabled()
            && !page.optSplit.Button(0).IsEnabled() && !page.optSplit.Button(1).IsEnabled();
    }
};

} // namespace tressel
