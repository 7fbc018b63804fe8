// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Look.h"

#include <QGuiApplication>
#include <QImage>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace tressel {

namespace {

QStyle::State StateOf(const FaceToDraw &face)
{
    switch (face.state) {
    case LookState::Normal:
        return QStyle::State_Enabled | QStyle::State_Raised;
    case LookState::Hover:
        return QStyle::State_Enabled | QStyle::State_Raised | QStyle::State_MouseOver;
    case LookState::Pressed:
        return QStyle::State_Enabled | QStyle::State_Sunken;
    case LookState::Disabled:
        break;
    }
    return QStyle::State_Raised;
}

bool HoldsAnythingBut(const QImage &image, QRgb colour)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::any_of(row, row + image.width(), [&](QRgb pixel) { return pixel != colour; }))
            return true;
    }
    return false;
}

/// Drawn by the desktop's own style. A style that leaves no mark on the face can't draw it.
class SystemTheme : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const QColor ground = face.System(SystemColour::ButtonFace);
        canvas.FillBox(0, 0, canvas.Width(), canvas.Height(), ground);
        if (!face.style)
            return false;
        QImage drawn(canvas.OnScreen(QRect(0, 0, canvas.Width(), canvas.Height())).size(),
                     QImage::Format_ARGB32_Premultiplied);
        drawn.fill(ground);
        drawn.setDevicePixelRatio(canvas.Scale());
        DrawWithStyle(drawn, face, QRect(0, 0, canvas.Width(), canvas.Height()));
        if (!HoldsAnythingBut(drawn, ground.rgb()))
            return false;
        drawn.setDevicePixelRatio(1);
        canvas.Painter().drawImage(0, 0, drawn);
        return true;
    }
    /// The theme draws a focused button as it draws a window's default one.
    bool ShowsFocus(const FaceToDraw &face) const override { return face.state == LookState::Normal; }

private:
    static void DrawWithStyle(QImage &image, const FaceToDraw &face, const QRect &bounds)
    {
        QStyleOptionButton option;
        option.rect = bounds;
        option.palette = face.palette;
        option.palette.setCurrentColorGroup(face.state == LookState::Disabled ? QPalette::Disabled
                                                                              : QPalette::Active);
        option.fontMetrics = QFontMetrics(QGuiApplication::font());
        option.state = StateOf(face);
        if (face.state == LookState::Normal && face.focused)
            option.features |= QStyleOptionButton::DefaultButton;
        QPainter painter(&image);
        face.style->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, face.widget);
    }
};

} // namespace

const Look &SystemThemeLook()
{
    static const SystemTheme look;
    return look;
}

} // namespace tressel
