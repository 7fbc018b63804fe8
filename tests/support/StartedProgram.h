// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "forms/Application.h"
#include "support/MemoryMachine.h"
#include "support/RunRecord.h"

namespace tressel {

/// The program on a memory machine, past its start: tips off, main window loaded, "Remove Ext" off and
/// "C:\Work" in the path row, unless a test starts it otherwise.
class StartedProgram {
public:
    StartedProgram()
    {
        machine.files.PutFolder(QStringLiteral("C:\\Work"));
        application.settings.Write(keys::ShowTips, QStringLiteral("0"));
        application.settings.Write(keys::FileExt, QStringLiteral("0"));
        application.settings.Write(keys::FilePath, QStringLiteral("C:\\Work"));
    }

    /// Goes through the start. Tests put settings and files in place before it.
    MainForm &Start()
    {
        application.Start();
        return Form();
    }

    MainForm &Form() { return application.frmMain(); }
    WorkArea &Area() { return Form().area; }
    QString Status() { return Area().lblStatusLine.Caption(); }

    void List(const QStringList &entries)
    {
        for (const QString &entry : entries)
            Area().LstItem.AddItem(entry);
    }

    /// The folders that exist below one, without their last "\".
    QStringList Folders(const QString &below = QStringLiteral("C:\\Work"))
    {
        QStringList folders;
        for (const QString &path : machine.files.Tree(below)) {
            if (path.endsWith(u'\\'))
                folders += path.chopped(1);
        }
        return folders;
    }

    MemoryMachine machine;
    RunRecord told; ///< by the runs
    Application application{machine.machine, {}, &told};
};

} // namespace tressel
