// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/widgets/SideBarHands.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QStringList warnings;

void NoteWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // Said by the platform without a display about every window that pops up.
    const bool isPlatforms = message.startsWith(u"This plugin does not support"_s);
    if (type != QtDebugMsg && type != QtInfoMsg && !isPlatforms)
        warnings.append(message);
}

} // namespace

bool SideBarHands::Up()
{
    warnings.clear();
    qInstallMessageHandler(NoteWarning);
    stage = std::make_unique<SideBarStage>();
    Widget().resize(340, 640);
    Widget().show();
    Widget().activateWindow();
    const bool isUp = QTest::qWaitForWindowActive(&Widget());
    Widget().setFocus(Qt::MouseFocusReason);
    return isUp && Widget().Rows() == 7;
}

QStringList SideBarHands::Down()
{
    stage.reset();
    qInstallMessageHandler(nullptr);
    return std::exchange(warnings, {});
}

void SideBarHands::MoveMouse(const QPoint &point)
{
    QMouseEvent event(QEvent::MouseMove, point, Widget().mapToGlobal(point), Qt::NoButton, {}, {});
    QApplication::sendEvent(&Widget(), &event);
}

void SideBarHands::Wheel(const QPoint &point, int delta)
{
    QWheelEvent event(point, Widget().mapToGlobal(point), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Widget(), &event);
}

QList<int> SideBarHands::ShownPages()
{
    QList<int> shown;
    for (int number = 1; number <= 7; ++number) {
        if (stage->pages.at(number - 1)->isVisible())
            shown.append(number);
    }
    return shown;
}

} // namespace tressel
