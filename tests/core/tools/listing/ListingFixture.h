// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Steps.h"
#include "support/MemoryMachine.h"
#include "support/RunRecord.h"
#include "support/Text.h"
#include "support/ToolBench.h"
#include "tools/folders/FolderListFile.h"
#include "tools/folders/FolderTree.h"
#include "tools/listing/ListingPage.h"

#include <gtest/gtest.h>

namespace tressel {

/// The listing tool on a form of its own.
struct ListingTool : ToolBench {
    using ToolBench::ToolBench;

    FolderTree tree{context};
    FolderListFile listFile{context, tree};
    ListingPage page{context, listFile};
};

struct WithMemoryMachine {
    MemoryMachine machine;
    RunRecord told;
};

/// The tool with the path set to D:\Music, which holds two files of 3 and 5 bytes and the folder Live with
/// one of 7.
class ListingFixture : public testing::Test, protected WithMemoryMachine, protected ListingTool {
protected:
    ListingFixture()
        : ListingTool(machine.machine, &told)
    {
        machine.files.AddDrive(u'D');
        machine.files.PutFile(QStringLiteral("D:\\Music\\a.mp3"), "123");
        machine.files.PutFile(QStringLiteral("D:\\Music\\b.mp3"), "12345");
        machine.files.PutFile(QStringLiteral("D:\\Music\\Live\\c.mp3"), "1234567");
        page.CboFilePath.SetText(QStringLiteral("D:\\Music"));
        page.ChckValg.SetChecked(true);
    }

    void Make() { page.btnGBMakeList.UserClicks(); }
    /// The report of that number in D:\Music on the day on which the clock stands.
    QByteArray Report(const QString &number = QStringLiteral("01"))
    {
        return machine.files.Bytes(ReportPath(number));
    }
    static QString ReportPath(const QString &number = QStringLiteral("01"))
    {
        return QStringLiteral("D:\\Music\\List-%1 2004-03-31.txt").arg(number);
    }
    /// Text of a file with these lines.
    static QByteArray Lines(const QList<QByteArray> &lines) { return lines.join("\r\n") + "\r\n"; }
    void ExpectFailureBox(const QString &text)
    {
        machine.dialogs.ExpectBox({text, QStringLiteral("Tressel"), BoxIcon::Exclamation});
    }

    /// The report that goes into the list.
    const QString temporary = QStringLiteral("C:\\Tressel\\~TR24D0.tmp");
    /// The first lines of a report of files.
    const QList<QByteArray> header{"************************",
                                   " Start Of File Listing: ", "************************"};
};

} // namespace tressel
