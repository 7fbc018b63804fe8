// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gui/widgets/SideBarStage.h"

#include <QAccessible>
#include <QImage>
#include <QStringList>
#include <QTest>

#include <memory>

namespace tressel {

/// A side bar on show, at its first entry and with all rows, and what a person does with it.
class SideBarHands {
protected:
    /// False if it didn't come up as told. Warnings are noted from here on.
    [[nodiscard]] bool Up();
    /// Takes it away. The warnings that were noted.
    QStringList Down();

    SideBar &Bar() { return stage->bar; }
    SideBarWidget &Widget() { return stage->widget; }
    QPoint Middle(int number) { return Widget().EntryRect(number).center(); }
    void Click(const QPoint &point) { QTest::mouseClick(&Widget(), Qt::LeftButton, {}, point); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&Widget(), key, modifiers);
    }
    /// The cursor of a display without one may be anywhere, so the event comes straight to the widget.
    void MoveMouse(const QPoint &point);
    void Wheel(const QPoint &point, int delta);
    QImage Picture() { return Widget().grab().toImage(); }
    QAccessibleInterface *Tabs() { return QAccessible::queryAccessibleInterface(&Widget()); }
    /// The numbers of the pages that are seen.
    QList<int> ShownPages();

    std::unique_ptr<SideBarStage> stage;
};

} // namespace tressel
