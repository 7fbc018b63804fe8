// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SideBarPainter.h"

#include <QPainter>
#include <QPainterPath>

#include <array>

namespace tressel {

namespace {

constexpr int margin = 8;
constexpr int markWidth = 3;

} // namespace

SideBarPainter::SideBarPainter(QPainter &target, const SideBarView &shown, const SideBarLayout &places,
                               const SideBarLook &colours, const SideBarTouch &state,
                               const IconProvider &provider)
    : painter(target)
    , view(shown)
    , layout(places)
    , look(colours)
    , touch(state)
    , icons(provider)
{
}

void SideBarPainter::Paint(const QSize &size, const QColor &pageGround)
{
    painter.fillRect(QRect(QPoint(), size), look.Colour(SideBarColour::Border));
    painter.fillRect(layout.Page(), pageGround);
    PaintHeader();
    PaintGrip();
    if (!layout.Bar().isEmpty())
        PaintBar();
    for (const int number : view.rows)
        PaintRow(number);
    for (const int number : view.rest)
        PaintCell(number);
    if (touch.focus && view.open > 0)
        PaintFocus();
}

void SideBarPainter::PaintHeader()
{
    const QRect header = layout.Header();
    const QColor ground = look.Colour(SideBarColour::Header);
    painter.fillRect(header, ground);
    painter.fillRect(QRect(header.topLeft(), QSize(header.width(), 1)),
                     look.Colour(SideBarColour::Highlight));
    painter.fillRect(QRect(header.bottomLeft(), QSize(header.width(), 1)),
                     look.Colour(SideBarColour::HeaderLine));
    if (!layout.MenuButton().isEmpty())
        PaintMenuButton();
    painter.setFont(look.CaptionFont());
    QRect text = header.adjusted(margin + markWidth, 0, -margin - markWidth, 0);
    if (!layout.MenuButton().isEmpty())
        text = Leading(text, text.width() - layout.MenuButton().width() + margin);
    PaintText(text, view.OpenEntry().Words(), look.CaptionOn(ground));
}

void SideBarPainter::PaintMenuButton()
{
    const QRect button = layout.MenuButton();
    const QColor ground = ButtonGround(SideBarPart::Kind::MenuButton, look.Colour(SideBarColour::Header));
    painter.fillRect(button.adjusted(0, 1, 0, -1), ground);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.CaptionOn(ground));
    const QPointF middle = QRectF(button).center();
    for (const int step : {-1, 0, 1})
        painter.drawEllipse(middle + QPointF(0, step * 5), 1.4, 1.4);
    painter.restore();
}

void SideBarPainter::PaintGrip()
{
    const QRect grip = layout.Grip();
    painter.fillRect(grip, ButtonGround(SideBarPart::Kind::Grip, look.Colour(SideBarColour::Bar)));
    painter.fillRect(QRect(grip.topLeft(), QSize(grip.width(), 1)), look.Colour(SideBarColour::HeaderLine));
    painter.fillRect(QRect(grip.left(), grip.top() + 1, grip.width(), 1),
                     look.Colour(SideBarColour::Highlight));
    const QPoint middle = grip.center();
    for (int step = -3; step <= 3; ++step)
        painter.fillRect(QRect(middle.x() + step * 5, middle.y(), 2, 2),
                         look.Colour(SideBarColour::HeaderLine));
}

void SideBarPainter::PaintBar()
{
    const QRect bar = layout.Bar();
    const QColor ground = look.Colour(SideBarColour::Bar);
    painter.fillRect(bar, ground);
    painter.fillRect(QRect(bar.topLeft(), QSize(bar.width(), 1)),
                     Mixed(ground, look.Colour(SideBarColour::Line), 0.6));
    using Kind = SideBarPart::Kind;
    if (layout.ScrollUp().isEmpty())
        return;
    PaintChevron(layout.ScrollUp(), true, view.canScrollUp, ButtonGround(Kind::ScrollUp, ground));
    PaintChevron(layout.ScrollDown(), false, view.canScrollDown, ButtonGround(Kind::ScrollDown, ground));
}

void SideBarPainter::PaintRow(int number)
{
    const QRect row = layout.Entry(number);
    const SideBarEntryView entry = view.Entry(number);
    const QColor strip = look.Colour(SideBarColour::Strip);
    const QColor ground = EntryGround(number, strip);
    painter.fillRect(row, ground);
    painter.fillRect(QRect(row.topLeft(), QSize(row.width(), 1)),
                     Mixed(strip, look.Colour(SideBarColour::Line), 0.45));
    if (number == view.open)
        painter.fillRect(Leading(row, markWidth), look.Colour(SideBarColour::OpenMark));
    QRect text = row.adjusted(margin + markWidth, 1, -margin - markWidth, 0);
    if (entry.image > 0) {
        PaintIcon(Leading(text, SideBarLook::iconSize), entry, ground);
        text = Trailing(text, text.width() - SideBarLook::iconSize - margin);
    }
    painter.setFont(look.TitleFont());
    PaintText(text, entry.Words(), look.TitleOn(ground));
}

void SideBarPainter::PaintCell(int number)
{
    const QRect cell = layout.Entry(number);
    const SideBarEntryView entry = view.Entry(number);
    const QColor ground = EntryGround(number, look.Colour(SideBarColour::Bar));
    painter.fillRect(cell.adjusted(0, 1, 0, 0), ground);
    if (number == view.open)
        painter.fillRect(QRect(cell.left(), cell.bottom() + 1 - markWidth, cell.width(), markWidth),
                         look.Colour(SideBarColour::OpenMark));
    if (PaintIcon(cell, entry, ground))
        return;
    painter.setFont(look.TitleFont());
    painter.setPen(look.TitleOn(ground));
    painter.drawText(cell, Qt::AlignCenter, entry.Words().left(1).toUpper());
}

void SideBarPainter::PaintFocus()
{
    const QRect entry = layout.Entry(view.open);
    const QColor ground = EntryGround(view.open, look.Colour(SideBarColour::Strip));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.TitleOn(ground), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(entry).adjusted(2.5, 3, -2.5, -2), 3, 3);
    painter.restore();
}

void SideBarPainter::PaintChevron(const QRect &rect, bool up, bool active, const QColor &ground)
{
    painter.save();
    painter.fillRect(rect.adjusted(0, 1, 0, 0), ground);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor colour = look.TitleOn(ground);
    colour.setAlphaF(active ? 1.0F : 0.3F);
    QPen pen(colour, 1.6);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    const QPointF middle = QRectF(rect).center();
    const double lift = up ? -2.0 : 2.0;
    painter.drawPolyline(
        std::array{middle + QPointF(-4, -lift), middle + QPointF(0, lift), middle + QPointF(4, -lift)}.data(),
        3);
    painter.restore();
}

void SideBarPainter::PaintText(const QRect &rect, const QString &text, const QColor &colour)
{
    painter.save();
    if (!view.enabled)
        painter.setOpacity(0.45);
    painter.setPen(colour);
    const QString fitting = painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width());
    const auto side = view.mirrored ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(rect, static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter), fitting);
    painter.restore();
}

bool SideBarPainter::PaintIcon(const QRect &rect, const SideBarEntryView &entry, const QColor &ground)
{
    const QIcon icon = icons && entry.image > 0
        ? icons(entry.image, PictureColoursOn(ground, look.TitleOn(ground)))
        : QIcon();
    if (icon.isNull())
        return false;
    const int size = std::min(SideBarLook::iconSize, rect.width());
    QRect place(0, 0, size, size);
    place.moveCenter(rect.center());
    icon.paint(&painter, place, Qt::AlignCenter, view.enabled ? QIcon::Normal : QIcon::Disabled);
    return true;
}

QColor SideBarPainter::EntryGround(int number, const QColor &rest) const
{
    const SideBarPart part{SideBarPart::Kind::Entry, number};
    if (touch.pressed == part && touch.hover == part)
        return look.Colour(SideBarColour::Pressed);
    if (number == view.open)
        return look.Colour(SideBarColour::Open);
    return touch.hover == part ? look.Colour(SideBarColour::Hover) : rest;
}

QColor SideBarPainter::ButtonGround(SideBarPart::Kind kind, const QColor &rest) const
{
    if (touch.pressed.kind == kind)
        return look.Colour(SideBarColour::Pressed);
    return touch.hover.kind == kind ? look.Colour(SideBarColour::Hover) : rest;
}

QRect SideBarPainter::Leading(const QRect &rect, int width) const
{
    return QRect(view.mirrored ? rect.right() + 1 - width : rect.left(), rect.top(), width, rect.height());
}

QRect SideBarPainter::Trailing(const QRect &rect, int width) const
{
    return QRect(view.mirrored ? rect.left() : rect.right() + 1 - width, rect.top(), width, rect.height());
}

} // namespace tressel
