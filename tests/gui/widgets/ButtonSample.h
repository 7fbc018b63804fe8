// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButton.h"
#include "widgets/ButtonPainter.h"
#include "widgets/SystemColours.h"

#include <QApplication>
#include <QImage>

#include <cstdlib>

namespace tressel::test {

using namespace Qt::StringLiterals;

inline constexpr int twips = 15;
inline constexpr int w = 90;
inline constexpr int h = 34;

/// A palette in which every colour that a look reads is another one.
inline QPalette TestPalette()
{
    QPalette palette(QColor(0xC8, 0xC8, 0xC0), QColor(0xE0, 0xE0, 0xD8));
    palette.setColor(QPalette::Button, QColor(0x90, 0xA0, 0x98));
    palette.setColor(QPalette::ButtonText, QColor(0x10, 0x20, 0x30));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x38, 0x40, 0x48));
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x60, 0x90));
    palette.setColor(QPalette::Dark, QColor(0x50, 0x58, 0x60));
    palette.setColor(QPalette::Base, QColor(0xF8, 0xF0, 0xE8));
    palette.setColor(QPalette::Light, QColor(0xFE, 0xFD, 0xFC));
    palette.setColor(QPalette::Midlight, QColor(0xE1, 0xE2, 0xE3));
    palette.setColor(QPalette::Shadow, QColor(0x01, 0x02, 0x03));
    return palette;
}

inline QColor System(SystemColour colour)
{
    return ColourOf(colour, TestPalette());
}

/// The palette of a dark desktop.
inline QPalette DarkPalette()
{
    QPalette dark(QColor(0x31, 0x31, 0x31), QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::ButtonText, Qt::white);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x80));
    dark.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
    return dark;
}

/// A button without a caption, and its picture.
struct Sample {
    explicit Sample(int style, qreal scale = 1)
    {
        button.SetStyle(static_cast<ButtonStyle>(style));
        button.SetCaption(u""_s);
        button.TakeSize(w * twips, h * twips);
        around.palette = TestPalette();
        around.font = QApplication::font();
        around.style = QApplication::style();
        around.scale = scale;
    }

    void UseColours()
    {
        button.SetUseCustomColors(true);
        button.SetBackColor(0x306090);
        button.SetHighlightColor(0x205080);
        button.SetFontColor(0x0000FF);
        button.SetFontHighlightColor(0x00FF00);
    }
    void Show(LookState state)
    {
        if (state == LookState::Hover)
            button.UserMovesMouse();
        else if (state == LookState::Pressed)
            button.UserPressesMouse(MouseButton::Left);
        else if (state == LookState::Disabled)
            button.SetEnabled(false);
    }
    QImage Draw() { return DrawButton(button, around); }
    QColor At(int x, int y) { return Draw().pixelColor(x, y); }

    Form form{u"frmTest"_s};
    IsButton button{form, u"btnTest"_s};
    ButtonSurroundings around;
};

/// The share of the pixels in which two pictures differ so that a person sees it.
inline double SeenDifference(const QImage &a, const QImage &b)
{
    constexpr int seen = 8;
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            if (std::abs(one.red() - other.red()) >= seen || std::abs(one.green() - other.green()) >= seen
                || std::abs(one.blue() - other.blue()) >= seen)
                ++differing;
        }
    }
    return double(differing) / (a.width() * a.height());
}

/// The box of all pixels in which two pictures differ.
inline QRect Difference(const QImage &a, const QImage &b)
{
    QRect box;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

inline const QList<LookState> allStates{LookState::Normal, LookState::Hover, LookState::Pressed,
                                        LookState::Disabled};

} // namespace tressel::test
