// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLineEdit;

namespace tressel {

class MainForm;
class IsButtonWidget;
class SideBarWidget;

/// The main window: toolbar, path row, side bar with the pages, tree and list, status line. Its widgets
/// bear the names of the form's controls.
class MainWindow : public QWidget {
public:
    /// The form must outlive the window.
    explicit MainWindow(const MainForm &form);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *MakeToolbar();
    QLayout *MakePathRow();
    QWidget *MakeSideBar();
    QWidget *MakeNames();
    QWidget *MakeStatus();
    void AddFaceless();
    void AddPages(SideBarWidget &bar);

    IsButtonWidget *create = nullptr;
    QLineEdit *path = nullptr;
};

} // namespace tressel
