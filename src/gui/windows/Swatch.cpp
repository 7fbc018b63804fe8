// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/Swatch.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

Swatch::Swatch(const QString &name, QString whatFor)
    : purpose(std::move(whatFor))
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    TellColour();
}

QSize Swatch::sizeHint() const
{
    return {28, 28};
}

void Swatch::TellColour()
{
    setAccessibleName(u"%1, %2"_s.arg(purpose, palette().color(QPalette::Window).name().toUpper()));
}

void Swatch::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        TellColour();
    QAbstractButton::changeEvent(event);
}

void Swatch::paintEvent(QPaintEvent *)
{
    constexpr int darkest = 128;
    const QColor colour = palette().color(QPalette::Window);
    QPainter painter(this);
    painter.fillRect(rect(), colour);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!hasFocus())
        return;
    // Seen on any colour: its own contrast, not the desktop's.
    painter.setPen(QPen(qGray(colour.rgb()) < darkest ? Qt::white : Qt::black, 2));
    painter.drawRect(rect().adjusted(3, 3, -3, -3));
}

SwatchFace::SwatchFace(PictureBox &control, Swatch &widget, const FaceLooks &looks)
    : FrameFace(control, widget, looks)
{
    connect(&widget, &QAbstractButton::clicked, this,
            [&control, this] { Hand([&] { control.UserClicks(); }); });
}

} // namespace tressel
