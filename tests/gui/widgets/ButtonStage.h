// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/IsButtonWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTest>

#include <memory>

namespace tressel {

/// A button that counts how often it is painted.
class CountingButton : public IsButtonWidget {
public:
    using IsButtonWidget::IsButtonWidget;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        IsButtonWidget::paintEvent(event);
    }
};

/// A window on show with one button, whose control stands on a form and counts its events.
struct ButtonStage {
    /// False if the window didn't come up, or with the pointer over the button.
    [[nodiscard]] bool Up()
    {
        form = std::make_unique<Form>(QStringLiteral("frmTest"));
        control = std::make_unique<IsButton>(*form, QStringLiteral("btnTest"), QStringLiteral("&Apply"));
        clicks = enters = leaves = 0;
        control->Click.Also([this] { ++clicks; });
        control->MouseEnter.Handle([this] { ++enters; });
        control->MouseLeave.Handle([this] { ++leaves; });
        window = std::make_unique<QWidget>();
        window->resize(300, 200);
        button = new CountingButton(window.get());
        button->setObjectName(QStringLiteral("btnTest"));
        button->setGeometry(50, 50, 100, 30);
        button->SetControl(control.get());
        QCursor::setPos(window->screen()->geometry().bottomRight());
        window->move(0, 0);
        window->show();
        return QTest::qWaitForWindowActive(window.get()) && !button->underMouse();
    }
    void Down()
    {
        window.reset();
        control.reset();
        form.reset();
    }

    /// The pointer itself stays where it is, so that no event of the desktop mixes in.
    void Hover(const QPoint &place)
    {
        QMouseEvent moved(QEvent::MouseMove, place, button->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                          {});
        QApplication::sendEvent(button, &moved);
    }

    std::unique_ptr<QWidget> window;
    CountingButton *button = nullptr;
    std::unique_ptr<Form> form;
    std::unique_ptr<IsButton> control;
    int clicks = 0;
    int enters = 0;
    int leaves = 0;
};

} // namespace tressel
