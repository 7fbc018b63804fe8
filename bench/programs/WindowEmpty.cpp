// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows the main window and has its page for empty folders search a folder that holds some:
// tressel-window-empty search|remove FOLDER
// With "remove" all that were found are removed, and only that is measured. Prints the seconds on the clock
// and those of the processor from the press of the button to the last paint.

#include "MeasuredWindow.h"

#include <QMessageBox>
#include <QPushButton>

using namespace tressel;
using namespace Qt::StringLiterals;

int main(int count, char **arguments)
{
    if (count != 3)
        return 2;
    constexpr auto entryOfPage = "6"_L1;
    MeasuredWindow window(arguments);
    window.Put(keys::IndxBar, entryOfPage);
    window.Put(keys::SearchPath, QString::fromLocal8Bit(arguments[2]));
    window.Start();
    EmptyFoldersPage &page = window.Form().emptyFolders;
    const auto search = [&] { page.btnGBToolbarSearch.UserClicks(); };
    if (QString::fromLocal8Bit(arguments[1]) == u"search"_s) {
        window.Measure(search);
        return page.ListRemove.ListCount() > 0 ? 0 : 1;
    }
    search();
    window.ShowAll();
    window.Measure([&] {
        AnswerNext<QMessageBox>([](QMessageBox &box) { box.button(QMessageBox::Yes)->click(); });
        page.btnGBToolbarDeleteAll.UserClicks();
    });
    return page.ListRemove.ListCount() == 0 ? 0 : 1;
}
