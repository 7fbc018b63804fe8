// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/MemoryMachine.h"
#include "support/RunRecord.h"
#include "support/Text.h"
#include "support/ToolBench.h"
#include "tools/numbered/NumberedPage.h"

#include <gtest/gtest.h>

namespace tressel {

/// The page on a form of its own, standing in the empty folder D:\Work, with nothing behind the main
/// folder's name and the padding of the last number.
class NumberedFixture : public testing::Test {
protected:
    NumberedFixture()
    {
        machine.files.AddDrive(u'D');
        machine.files.PutFolder(QStringLiteral("D:\\Work"));
        options.OptSound.Select(0);
        options.OptDigit.Select(1);
        page.FillNumberCombos();
        page.DrvBox.Refresh();
        page.DirBox.SetPath(QStringLiteral("D:\\Work"));
        page.txtFeltDirSub.SetText({});
    }

    void SetSeries(const QString &from, const QString &to)
    {
        page.cboFrom.SetText(from);
        page.cboTo.SetText(to);
    }
    void Make(const QString &from, const QString &to)
    {
        SetSeries(from, to);
        page.btnGBMake.UserClicks();
    }
    void Delete(const QString &from, const QString &to)
    {
        SetSeries(from, to);
        page.btnGBDelete.UserClicks();
    }
    QStringList Work() { return machine.files.Tree(QStringLiteral("D:\\Work")); }

    MemoryMachine machine;
    RunRecord told;
    ToolBench bench{machine.machine, &told};
    OptionForm &options = bench.options;
    FolderList DirList{bench.form, QStringLiteral("DirList"), machine.files};
    NumberedPage page{bench.context, DirList};
};

} // namespace tressel
