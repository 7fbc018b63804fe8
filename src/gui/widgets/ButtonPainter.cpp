// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/ButtonPainter.h"

#include "controls/IsButton.h"
#include "faces/Captions.h"
#include "widgets/FontFaces.h"
#include "widgets/PictureImages.h"
#include "widgets/SystemColours.h"
#include "widgets/looks/Look.h"

#include <QPainter>

#include <algorithm>

namespace tressel {

namespace {

constexpr QRgb shadowColour = 0xFF808080;
constexpr qreal disabledIconOpacity = 0.4;
constexpr int plainMargin = 4;
constexpr int plainFocusInset = 2;

/// What the looks of fixed light colours read for the desktop's own, so that text stays readable on them.
QPalette LightPalette(const QPalette &desktop)
{
    QPalette light = desktop;
    if (desktop.color(QPalette::Active, QPalette::ButtonText).lightness() > 127)
        light.setColor(QPalette::Active, QPalette::ButtonText, Qt::black);
    return light;
}

FaceToDraw FaceOf(const IsButton &button, const ButtonSurroundings &around)
{
    FaceToDraw face;
    face.state = button.ShownState();
    face.focused = button.HasFocus();
    face.custom = button.UseCustomColors() && face.state != LookState::Disabled;
    face.palette = around.palette;
    face.style = around.style;
    face.widget = around.widget;
    face.back = face.custom ? TranslateColour(button.BackColor(), around.palette)
                            : ColourOf(SystemColour::ButtonFace, around.palette);
    face.highlight = face.custom ? TranslateColour(button.HighlightColor(), around.palette)
                                 : ColourOf(SystemColour::Highlight, around.palette);
    return face;
}

QColor TextColour(const IsButton &button, const FaceToDraw &face)
{
    if (face.state == LookState::Disabled)
        return face.System(SystemColour::GrayText);
    if (!face.custom)
        return face.System(SystemColour::ButtonText);
    const bool lit = face.state != LookState::Normal;
    return TranslateColour(lit ? button.FontHighlightColor() : button.FontColor(), face.palette);
}

int AlignmentOf(int textDrawFlags)
{
    constexpr int centred = 1;
    constexpr int right = 2;
    constexpr int middle = 4;
    constexpr int bottom = 8;
    int alignment = Qt::AlignAbsolute;
    alignment |= textDrawFlags & centred ? Qt::AlignHCenter
        : textDrawFlags & right          ? Qt::AlignRight
                                         : Qt::AlignLeft;
    alignment |= textDrawFlags & middle ? Qt::AlignVCenter
        : textDrawFlags & bottom        ? Qt::AlignBottom
                                        : Qt::AlignTop;
    return alignment;
}

QFont CaptionFont(const IsButton &button, const QFont &containers)
{
    return button.Font() ? ToFont(*button.Font()) : containers;
}

QString ShownCaption(const IsButton &button, const QFontMetrics &metrics)
{
    return ElidedLines(metrics, WithLineBreaks(button.Caption()), button.TextBox().width(),
                       Qt::TextShowMnemonic);
}

/// Too wide a caption ends in "…". Nothing is cut at its upper and lower side, where a low button has less
/// room than the letters need.
void DrawCaption(QPainter &painter, const IsButton &button, const ButtonSurroundings &around,
                 const FaceToDraw &face)
{
    const QRect box = button.TextBox();
    if (button.Caption().isEmpty() || box.width() < 1)
        return;
    painter.save();
    painter.scale(around.scale, around.scale);
    painter.setFont(CaptionFont(button, around.font));
    painter.setPen(TextColour(button, face));
    const QString shown = ShownCaption(button, painter.fontMetrics());
    const int mnemonic = around.underlinesMnemonic ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const int lines = shown.contains(u'\n') ? 0 : Qt::TextSingleLine;
    painter.drawText(box, AlignmentOf(button.TextDrawFlags()) | lines | Qt::TextDontClip | mnemonic, shown);
    painter.restore();
}

QPoint IconCorner(const IsButton &button, int margin)
{
    const QRect bounds = button.Bounds();
    const int size = button.IconSize();
    const QPoint centred((bounds.width() - size) / 2, (bounds.height() - size) / 2);
    switch (button.IconAlign()) {
    case IconPlace::Left:
        return QPoint(margin, centred.y());
    case IconPlace::Right:
        return QPoint(bounds.width() - size - margin, centred.y());
    case IconPlace::Top:
        return QPoint(centred.x(), margin);
    case IconPlace::Bottom:
        return QPoint(centred.x(), bounds.height() - size - margin);
    case IconPlace::Centre:
        break;
    }
    return centred;
}

/// Turns whatever stands out from the face in this square grey.
void CastShadow(QImage &drawn, const QRect &square, const QPoint &facePlace)
{
    const QRgb face = drawn.pixel(facePlace);
    const QRect seen = square & drawn.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(drawn.scanLine(y));
        for (int x = seen.left(); x <= seen.right(); ++x) {
            if (row[x] != face)
                row[x] = shadowColour;
        }
    }
}

void DrawIcon(QImage &drawn, Canvas &canvas, const IsButton &button, const FaceToDraw &face, int margin)
{
    const PictureColours colours =
        PictureColoursOn(face.System(SystemColour::ButtonFace), face.System(SystemColour::ButtonText));
    const QImage icon = ImageOf(button.Icon(), qRound(button.IconSize() * canvas.Scale()), colours);
    if (icon.isNull())
        return;
    QPoint corner = IconCorner(button, margin);
    if (face.state == LookState::Pressed)
        corner += QPoint(1, 1);
    const auto onScreen = [&](const QPoint &point) {
        return canvas.OnScreen(QRect(point, QSize(1, 1))).topLeft();
    };
    if (button.Style() == ButtonStyle::Highlight && face.state == LookState::Hover) {
        canvas.Painter().drawImage(onScreen(corner), icon);
        CastShadow(drawn, QRect(onScreen(corner), icon.size()), onScreen({1, 1}));
        corner -= QPoint(1, 1);
    }
    canvas.Painter().setOpacity(face.state == LookState::Disabled ? disabledIconOpacity : 1);
    canvas.Painter().drawImage(onScreen(corner), icon);
    canvas.Painter().setOpacity(1);
}

void DrawFocusMark(Canvas &canvas, const IsButton &button, const ButtonSurroundings &around,
                   const FaceToDraw &face, const Look *look)
{
    const bool hasRing = look && look->ShowsFocus(face);
    if (!face.focused || hasRing || !(button.ShowFocus() || around.marksFocus))
        return;
    const int inset = look ? look->FocusInset(face) : plainFocusInset;
    const qreal radius = look ? std::max(0.0, look->CornerRadius() - inset) : 0;
    canvas.RoundFrame(inset, inset, canvas.Width() - 2 * inset - 1, canvas.Height() - 2 * inset - 1, radius,
                      TextColour(button, face));
}

} // namespace

QImage DrawButton(IsButton &button, const ButtonSurroundings &around)
{
    const QSize size = button.Bounds().size();
    const QSize screenSize = around.screenSize.isEmpty()
        ? QSize(qRound(size.width() * around.scale), qRound(size.height() * around.scale))
        : around.screenSize;
    QImage drawn(screenSize, QImage::Format_ARGB32_Premultiplied);
    if (drawn.isNull())
        return drawn;
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    Canvas canvas(painter, size, screenSize, around.scale);

    FaceToDraw face = FaceOf(button, around);
    const Look *look = LookOf(button.Style());
    if (look && !look->DrawFace(canvas, face)) {
        button.GiveUpTheme();
        look = LookOf(button.Style());
        if (look)
            look->DrawFace(canvas, face);
    }
    if (look && look->HasLightFace(face))
        face.palette = LightPalette(face.palette);
    DrawCaption(painter, button, around, face);
    DrawIcon(drawn, canvas, button, face, look ? look->Margin() : plainMargin);
    DrawFocusMark(canvas, button, around, face, look);
    return drawn;
}

bool ShowsWholeCaption(const IsButton &button, const QFont &containersFont)
{
    return ShownCaption(button, QFontMetrics(CaptionFont(button, containersFont)))
        == WithLineBreaks(button.Caption());
}

QRegion ShapeOf(const IsButton &button, qreal scale)
{
    const Look *look = LookOf(button.Style());
    QRegion shape = look ? look->Shape(button.Bounds().size()) : QRegion();
    if (scale > 1) {
        const QRegion own = shape;
        for (const QPoint &step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
            shape += own.translated(step) & button.Bounds();
    }
    return shape;
}

} // namespace tressel
