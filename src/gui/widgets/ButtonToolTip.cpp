// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/ButtonToolTip.h"

#include "controls/IsButton.h"
#include "faces/Captions.h"
#include "faces/PlainTips.h"
#include "widgets/SystemColours.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <chrono>

namespace tressel {

namespace {

constexpr int padding = 6;
constexpr int gap = 6;
constexpr int widestText = 360;
constexpr int tailHeight = 10;
constexpr int tailPlace = 18;
constexpr int belowPointer = 20;
constexpr std::chrono::seconds shownFor{10};

QPixmap IconOf(ToolTipIconKind kind, const QWidget &owner)
{
    const auto standard = [&](QStyle::StandardPixmap pixmap) {
        const int size = owner.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &owner);
        return owner.style()->standardIcon(pixmap, nullptr, &owner).pixmap(size, owner.devicePixelRatioF());
    };
    switch (kind) {
    case ToolTipIconKind::Information:
        return standard(QStyle::SP_MessageBoxInformation);
    case ToolTipIconKind::Warning:
        return standard(QStyle::SP_MessageBoxWarning);
    case ToolTipIconKind::Error:
        return standard(QStyle::SP_MessageBoxCritical);
    case ToolTipIconKind::None:
        break;
    }
    return {};
}

QColor OwnOr(ColourNumber own, SystemColour desktops, const QPalette &palette)
{
    return own == 0 ? ColourOf(desktops, palette) : TranslateColour(own, palette);
}

QFont Bold(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace

ButtonToolTip::ButtonToolTip(const IsButton &button, QWidget &owner, const QString &caption)
    : QWidget(&owner, Qt::ToolTip | Qt::WindowStaysOnTopHint | Qt::FramelessWindowHint)
    , text(WithLineBreaks(caption.isEmpty() ? button.ToolTip() : WholeAndTip(caption, button.ToolTip())))
    , title(button.ToolTipTitle())
    , icon(IconOf(button.ToolTipIcon(), owner))
    , balloon(button.ToolTipType() == ToolTipShape::Balloon)
{
    const QPalette tipPalette = QToolTip::palette();
    face = OwnOr(button.ToolTipBackColor(), SystemColour::ToolTipFace, tipPalette);
    textColour = OwnOr(button.ToolTipForeColor(), SystemColour::ToolTipText, tipPalette);
    setFont(QToolTip::font());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_TranslucentBackground, balloon);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(owner.objectName() + QStringLiteral("ToolTip"));
    hideTimer.setSingleShot(true);
    connect(&hideTimer, &QTimer::timeout, this, &QWidget::hide);

    const QSize head = TitleSize();
    const QSize body = TextSize();
    const int headRoom = head.isEmpty() ? 0 : head.height() + gap;
    resize(std::max({head.width(), body.width(), balloon ? 2 * tailPlace : 0}) + 2 * padding,
           headRoom + body.height() + 2 * padding + (balloon ? tailHeight : 0));
}

QSize ButtonToolTip::TitleSize() const
{
    if (title.isEmpty() && icon.isNull())
        return {};
    const QSize iconSize = icon.isNull() ? QSize() : icon.deviceIndependentSize().toSize();
    const QFontMetrics metrics(Bold(font()));
    return QSize(std::max(0, iconSize.width()) + gap + metrics.horizontalAdvance(title),
                 std::max(iconSize.height(), metrics.height()));
}

QSize ButtonToolTip::TextSize() const
{
    return fontMetrics().boundingRect(QRect(0, 0, widestText, QWIDGETSIZE_MAX), Qt::TextWordWrap, text).size()
        + QSize(2, 0);
}

QRect ButtonToolTip::Body() const
{
    return rect().adjusted(0, balloon ? tailHeight : 0, 0, 0);
}

void ButtonToolTip::ShowAt(const QPoint &globalPosition)
{
    if (text.isEmpty())
        return;
    QPoint place = globalPosition + QPoint(balloon ? -tailPlace : 2, balloon ? 4 : belowPointer);
    if (const QScreen *screen = QGuiApplication::screenAt(globalPosition)) {
        const QRect room = screen->availableGeometry();
        place.setX(std::max(room.left(), std::min(place.x(), room.right() - width())));
        if (place.y() + height() > room.bottom())
            place.setY(globalPosition.y() - height() - 4);
    }
    move(place);
    show();
    hideTimer.start(shownFor);
}

void ButtonToolTip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(Body()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    if (balloon) {
        QPainterPath tail;
        tail.addPolygon(QPolygonF({QPointF(tailPlace, 0.5), QPointF(tailPlace, tailHeight + 2),
                                   QPointF(tailPlace + tailHeight, tailHeight + 2)}));
        tail.closeSubpath();
        outline.addRoundedRect(body, 7, 7);
        outline = outline.united(tail);
    } else {
        outline.addRect(body);
    }
    painter.setPen(textColour);
    painter.setBrush(face);
    painter.drawPath(outline);

    QRect room = Body().adjusted(padding, padding, -padding, -padding);
    const QSize head = TitleSize();
    if (!head.isEmpty()) {
        const QSize iconSize = icon.isNull() ? QSize(0, 0) : icon.deviceIndependentSize().toSize();
        painter.drawPixmap(room.left(), room.top() + (head.height() - iconSize.height()) / 2, icon);
        painter.setFont(Bold(font()));
        const int titleLeft = room.left() + (icon.isNull() ? 0 : iconSize.width() + gap);
        painter.drawText(QRect(titleLeft, room.top(), room.right() - titleLeft + 1, head.height()),
                         Qt::AlignVCenter | Qt::TextSingleLine, title);
        room.setTop(room.top() + head.height() + gap);
    }
    painter.setFont(font());
    painter.drawText(room, Qt::TextWordWrap, text);
}

} // namespace tressel
