// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButtonProperties.h"

#include <QTimer>
#include <QWidget>

namespace tressel {

class IsButton;

/// The tool tip of a button: a text, with a title and an icon above it if there are any, in its own
/// colours, as a box or as a balloon that points at the button.
class ButtonToolTip : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)

public:
    /// Takes the button's texts and colours as they are now. `caption` is what stands above its text, for a
    /// button whose caption isn't seen whole.
    ButtonToolTip(const IsButton &button, QWidget &owner, const QString &caption = {});

    const QString &Text() const { return text; }
    const QString &Title() const { return title; }
    bool IsBalloon() const { return balloon; }
    QColor Face() const { return face; }
    QColor TextColour() const { return textColour; }
    bool HasIcon() const { return !icon.isNull(); }

    /// Shows itself for a while below this point of the screen. Without a text it shows nothing.
    void ShowAt(const QPoint &globalPosition);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize TitleSize() const;
    QSize TextSize() const;
    QRect Body() const;

    QString text;
    QString title;
    QPixmap icon;
    bool balloon;
    QColor face;
    QColor textColour;
    QTimer hideTimer;
};

} // namespace tressel
