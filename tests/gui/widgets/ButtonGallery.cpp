// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/CtlProgress.h"
#include "controls/IsButton.h"
#include "gui/widgets/ButtonSample.h"
#include "widgets/ButtonPainter.h"
#include "widgets/CtlProgressWidget.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QStyle>

#include <cstdio>
#include <functional>
#include <vector>

using namespace tressel;
using namespace tressel::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int cellWidth = 118;
constexpr int cellHeight = 84;
constexpr int nameWidth = 80;
constexpr int headHeight = 24;

const QByteArray iconBytes(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">
<path d="M3 8h10l3 4h13v15H3z" fill="#f0c04c" stroke="#7a5a10" stroke-width="2" stroke-linejoin="round"/>
<path d="M16 15v9M11.500 19.500h9" stroke="#7a5a10" stroke-width="2" stroke-linecap="round"/></svg>)");

struct Column {
    QString name;
    std::function<void(IsButton &)> prepare;
};

void UseCustomColours(IsButton &button)
{
    button.SetUseCustomColors(true);
    button.SetBackColor(0xC8E6C8);
    button.SetHighlightColor(0x9CD0F4);
    button.SetFontColor(0x303000);
    button.SetFontHighlightColor(0x800000);
}

void AddIcon(IsButton &button)
{
    button.PlaceIcon(Picture(iconBytes));
    button.SetIconAlign(IconPlace::Top);
    button.SetIconSize(32);
}

const std::vector<Column> &Columns()
{
    static const std::vector<Column> columns{
        {u"normal"_s, [](IsButton &) {}},
        {u"hover"_s, [](IsButton &button) { button.UserMovesMouse(); }},
        {u"pressed"_s, [](IsButton &button) { button.UserPressesMouse(MouseButton::Left); }},
        {u"disabled"_s, [](IsButton &button) { button.SetEnabled(false); }},
        {u"focus"_s, [](IsButton &button) { button.TakeFocus(true); }},
        {u"hover focus"_s,
         [](IsButton &button) {
             button.UserMovesMouse();
             button.TakeFocus(true);
         }},
        {u"pressed focus"_s,
         [](IsButton &button) {
             button.UserPressesMouse(MouseButton::Left);
             button.TakeFocus(true);
         }},
        {u"custom"_s, UseCustomColours},
        {u"custom hover"_s,
         [](IsButton &button) {
             UseCustomColours(button);
             button.UserMovesMouse();
         }},
        {u"custom pressed"_s,
         [](IsButton &button) {
             UseCustomColours(button);
             button.UserPressesMouse(MouseButton::Left);
         }},
        {u"icon"_s, AddIcon},
        {u"icon hover"_s,
         [](IsButton &button) {
             AddIcon(button);
             button.UserMovesMouse();
         }},
        {u"icon pressed"_s,
         [](IsButton &button) {
             AddIcon(button);
             button.UserPressesMouse(MouseButton::Left);
         }},
        {u"icon disabled"_s,
         [](IsButton &button) {
             AddIcon(button);
             button.SetEnabled(false);
         }},
        {u"icon focus"_s,
         [](IsButton &button) {
             AddIcon(button);
             button.SetCaption(u"&Copy (big) Folder"_s);
             button.TakeFocus(true);
         }},
        {u"low focus"_s,
         [](IsButton &button) {
             button.SetCaption(u"&Copy (big) Folder"_s);
             button.TakeSize(104 * twips, 22 * twips);
             button.TakeFocus(true);
         }},
        {u"too long"_s, [](IsButton &button) { button.SetCaption(u"A caption too long for it"_s); }},
        {u"smallest"_s,
         [](IsButton &button) {
             button.SetCaption(u"..."_s);
             button.TakeSize(0, 0);
         }},
    };
    return columns;
}

/// One button of the sheet: its row's look, its column's state.
QImage Cell(int style, const Column &column, const ButtonSurroundings &around)
{
    Form form(u"gallery"_s);
    IsButton button(form, u"btn"_s, u"&Make Folder"_s);
    button.SetStyle(static_cast<ButtonStyle>(style));
    button.TakeSize(104 * twips, (column.name.startsWith(u"icon"_s) ? 66 : 30) * twips);
    column.prepare(button);
    ButtonSurroundings own = around;
    own.marksFocus = button.HasFocus();
    return DrawButton(button, own);
}

void DrawSheet(const QString &file, const QPalette &palette, const QColor &ground, qreal scale)
{
    const int columnCount = static_cast<int>(Columns().size());
    constexpr int styleCount = 12;
    QImage sheet(QSize(nameWidth + columnCount * cellWidth, headHeight + styleCount * cellHeight) * scale,
                 QImage::Format_RGB32);
    sheet.fill(ground);
    ButtonSurroundings around;
    around.palette = palette;
    around.font = QApplication::font();
    around.style = QApplication::style();
    around.scale = scale;

    QPainter painter(&sheet);
    QFont small = QApplication::font();
    small.setPixelSize(qRound(11 * scale));
    painter.setFont(small);
    painter.setPen(palette.color(QPalette::WindowText));
    for (int column = 0; column < columnCount; ++column) {
        const Column &shown = Columns()[static_cast<std::size_t>(column)];
        const QPointF head(nameWidth + column * cellWidth, 15);
        painter.drawText(head * scale, shown.name);
        for (int style = 0; style < styleCount; ++style) {
            const QPointF place(nameWidth + column * cellWidth, headHeight + style * cellHeight + 8);
            painter.drawImage((place * scale).toPoint(), Cell(style, shown, around));
        }
    }
    for (int style = 0; style < styleCount; ++style)
        painter.drawText(QPointF(6, headHeight + style * cellHeight + 26) * scale, u"Style %1"_s.arg(style));
    painter.end();
    if (!sheet.save(file))
        std::fprintf(stderr, "%s can't be written\n", qPrintable(file));
}

void DrawBars(const QString &file, const QPalette &palette, qreal scale)
{
    constexpr QSize size(240, 22);
    QImage sheet(QSize(size.width() + 20, 5 * 30 + 10) * scale, QImage::Format_RGB32);
    sheet.fill(palette.color(QPalette::Window));
    QPainter painter(&sheet);
    int row = 0;
    for (const int value : {0, 47, 52, 150}) {
        Form form(u"gallery"_s);
        CtlProgress bar(form, u"bar"_s);
        bar.SetValue(value);
        painter.drawImage(QPointF(10, 10 + 30 * row++) * scale,
                          DrawProgress(bar.Drawn(), palette.color(QPalette::Window), palette,
                                       QApplication::font(), size * scale, scale));
    }
    Form form(u"gallery"_s);
    CtlProgress bar(form, u"bar"_s);
    bar.SetCaptionStyle(CaptionStyle::Caption);
    bar.SetCaption(u"Joining the parts"_s);
    bar.SetValue(50);
    painter.drawImage(QPointF(10, 10 + 30 * row) * scale,
                      DrawProgress(bar.Drawn(), palette.color(QPalette::Base), palette, QApplication::font(),
                                   size * scale, scale));
    painter.end();
    sheet.save(file);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"."_s;
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "%s can't be made\n", qPrintable(folder));
        return 1;
    }
    QApplication::setStyle(u"Fusion"_s);
    const QPalette light = QApplication::style()->standardPalette();
    for (const int percent : {100, 125, 150, 200, 300}) {
        const qreal scale = percent / 100.0;
        DrawSheet(folder + u"/buttons-light-%1.png"_s.arg(percent), light, QColor(0xF5, 0xF5, 0xF5), scale);
        DrawSheet(folder + u"/buttons-dark-%1.png"_s.arg(percent), DarkPalette(), QColor(0x35, 0x35, 0x35),
                  scale);
        DrawBars(folder + u"/bars-light-%1.png"_s.arg(percent), light, scale);
        DrawBars(folder + u"/bars-dark-%1.png"_s.arg(percent), DarkPalette(), scale);
    }
    return 0;
}
