// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/IsButton.h"
#include "widgets/ButtonPainter.h"
#include "widgets/SystemColours.h"
#include "widgets/looks/Look.h"
#include "widgets/looks/PillColours.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QTest>

#include <memory>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int twips = 15;
constexpr int w = 90;
constexpr int h = 34;

/// A palette in which every colour that a look reads is another one.
QPalette TestPalette()
{
    QPalette palette(QColor(0xC8, 0xC8, 0xC0), QColor(0xE0, 0xE0, 0xD8));
    palette.setColor(QPalette::Button, QColor(0x90, 0xA0, 0x98));
    palette.setColor(QPalette::ButtonText, QColor(0x10, 0x20, 0x30));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x70, 0x78, 0x80));
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x60, 0x90));
    palette.setColor(QPalette::Dark, QColor(0x50, 0x58, 0x60));
    palette.setColor(QPalette::Base, QColor(0xF8, 0xF0, 0xE8));
    palette.setColor(QPalette::Light, QColor(0xFE, 0xFD, 0xFC));
    palette.setColor(QPalette::Midlight, QColor(0xE1, 0xE2, 0xE3));
    palette.setColor(QPalette::Shadow, QColor(0x01, 0x02, 0x03));
    return palette;
}

QColor System(SystemColour colour)
{
    return ColourOf(colour, TestPalette());
}

/// A style that draws no button at all.
class BlankStyle : public QProxyStyle {
public:
    void drawControl(ControlElement, const QStyleOption *, QPainter *, const QWidget *) const override { }
};

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

/// The box of all pixels in which two pictures differ.
QRect Difference(const QImage &a, const QImage &b)
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

QByteArray RedSquare()
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\"><rect width=\"8\" height=\"8\" "
           "fill=\"#ff0000\"/></svg>";
}

QRect RedBox(const QImage &image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(255, 0, 0))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

const QList<LookState> allStates{LookState::Normal, LookState::Hover, LookState::Pressed,
                                 LookState::Disabled};

} // namespace

class ButtonLooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ClassicHasItsFaceAndEdges();
    void HotTrackAndFlatHaveTheirEdges();
    void DoubleLineHasTwoFramesAndItsBox();
    void HighlightIsPaleAndFramedUnderThePointer();
    void BlueRoundedHasItsFixedColours();
    void BlueRoundedDerivesItsOwnColours();
    void MandrakeRunsFromLightToDarkAndBackWhenPressed();
    void KeramikAndPlastikDeriveFromTheFace();
    void PillLinesAreToldToThePixel_data();
    void PillLinesAreToldToThePixel();
    void PillColoursDoNotDependOnAnything();
    void PillCornersRunOnFromTheLines();
    void NarrowPillDrawsWithoutFailure();
    void DisabledFaceIgnoresTheButtonsOwnColours();
    void BackColorWithoutCustomColoursChangesNothing();
    void EveryStateDiffers();
    void EveryFocusIsVisible();
    void ShapesAreTold();
    void FaceStaysInItsShape();
    void ThemeDrawsWithTheDesktopsStyle();
    void ThemeThatCannotDrawIsGivenUpForGood();
    void UnknownStyleDrawsOnlyTheCaption();
    void PressedMovesTheIconAndNotTheText();
    void IconStandsInItsFivePlaces();
    void MarginIsTheLooks();
    void HighlightCastsAShadow();
    void CaptionStandsInItsFivePlaces();
    void CaptionHasItsColours();
    void LongCaptionIsElided();
    void RightToLeftCaptionIsDrawn();
    void TinyFacesAreDrawn();
    void ScalesKeepSharpLines();
    void SystemColoursHaveOneTable();
};

void ButtonLooksTest::ClassicHasItsFaceAndEdges()
{
    Sample plain(0);
    QCOMPARE(plain.At(20, 10), System(SystemColour::ButtonFace));
    QCOMPARE(plain.At(0, 0), TestPalette().color(QPalette::Midlight));
    QCOMPARE(plain.At(1, 1), TestPalette().color(QPalette::Light));
    QCOMPARE(plain.At(w - 1, 10), TestPalette().color(QPalette::Shadow));
    QCOMPARE(plain.At(w - 2, 10), System(SystemColour::ButtonShadow));
    plain.Show(LookState::Pressed);
    QCOMPARE(plain.At(0, 0), System(SystemColour::ButtonShadow));
    QCOMPARE(plain.At(1, 1), TestPalette().color(QPalette::Shadow));
    QCOMPARE(plain.At(w - 1, 10), TestPalette().color(QPalette::Light));

    Sample custom(0);
    custom.UseColours();
    QCOMPARE(custom.At(20, 10), QColor(0x90, 0x60, 0x30));
    custom.Show(LookState::Hover);
    QCOMPARE(custom.At(20, 10), QColor(0x80, 0x50, 0x20));
    custom.Show(LookState::Pressed);
    QCOMPARE(custom.At(20, 10), QColor(0x80, 0x50, 0x20));
}

void ButtonLooksTest::HotTrackAndFlatHaveTheirEdges()
{
    const QColor light = TestPalette().color(QPalette::Light);
    const QColor shadow = System(SystemColour::ButtonShadow);
    struct Row {
        int style;
        LookState state;
        QColor topLeft;
        QColor bottomRight;
    };
    const QList<Row> rows{
        {1, LookState::Normal, light, shadow},  {1, LookState::Hover, light, shadow},
        {1, LookState::Pressed, shadow, light}, {1, LookState::Disabled, shadow, shadow},
        {2, LookState::Normal, shadow, shadow}, {2, LookState::Hover, light, shadow},
        {2, LookState::Pressed, shadow, light}, {2, LookState::Disabled, shadow, shadow},
    };
    for (const Row &row : rows) {
        Sample sample(row.style);
        sample.Show(row.state);
        QCOMPARE(sample.At(0, 0), row.topLeft);
        QCOMPARE(sample.At(w - 1, h - 1), row.bottomRight);
        QCOMPARE(sample.At(1, 1), System(SystemColour::ButtonFace));
    }
}

void ButtonLooksTest::DoubleLineHasTwoFramesAndItsBox()
{
    const QColor shadow = System(SystemColour::ButtonShadow);
    const QColor face = System(SystemColour::ButtonFace);
    const QColor light = System(SystemColour::Window);
    Sample sample(3);
    QCOMPARE(sample.At(20, 0), shadow);
    QCOMPARE(sample.At(20, 1), light);
    QCOMPARE(sample.At(20, h - 1), shadow);
    QCOMPARE(sample.At(w - 2, 10), light);
    QCOMPARE(sample.At(0, 0), AverageColor(shadow, light));
    QCOMPARE(sample.At(w - 1, h - 1), AverageColor(shadow, light));
    QCOMPARE(sample.At(4, 4), face);
    sample.Show(LookState::Hover);
    QCOMPARE(sample.At(4, 4), AverageColor(shadow, face));
    QCOMPARE(sample.At(3, 3), face);
    QCOMPARE(sample.At(w - 5, h - 5), AverageColor(shadow, face));
    QCOMPARE(sample.At(w - 4, h - 4), face);
    sample.Show(LookState::Pressed);
    QCOMPARE(sample.At(4, 4), shadow);

    Sample custom(3);
    custom.UseColours();
    custom.Show(LookState::Hover);
    QCOMPARE(custom.At(10, 10), QColor(0x88, 0x58, 0x28));
    custom.Show(LookState::Pressed);
    QCOMPARE(custom.At(10, 10), QColor(0x80, 0x50, 0x20));
}

void ButtonLooksTest::HighlightIsPaleAndFramedUnderThePointer()
{
    Sample sample(4);
    const QColor face = sample.At(20, 10);
    QVERIFY(face.red() > System(SystemColour::ButtonFace).red());
    QCOMPARE(sample.At(0, 0), face);
    sample.Show(LookState::Hover);
    QCOMPARE(sample.At(0, 0), System(SystemColour::Highlight));
    QVERIFY(sample.At(20, 10).red() > System(SystemColour::Highlight).red());
    sample.Show(LookState::Pressed);
    QCOMPARE(sample.At(w - 1, h - 1), System(SystemColour::Highlight));
    sample.Show(LookState::Disabled);
    QCOMPARE(sample.At(0, 0), face);
}

void ButtonLooksTest::BlueRoundedHasItsFixedColours()
{
    Sample sample(5);
    QCOMPARE(sample.At(w / 2, 0), QColor(0x003C74));
    QCOMPARE(sample.At(0, h / 2), QColor(0x003C74));
    QCOMPARE(sample.At(w / 2, h - 1), QColor(0x003C74));
    QCOMPARE(sample.At(w - 1, h / 2), QColor(0x003C74));
    QCOMPARE(sample.At(w / 2, h - 2), QColor(0xD6D0C5));
    sample.button.TakeFocus(true);
    QCOMPARE(sample.At(w / 2, 1), QColor(0xCEE7FF));
    QCOMPARE(sample.At(w / 2, 2), QColor(0xBCD4F6));
    QCOMPARE(sample.At(w / 2, h - 3), QColor(0x89ADE4));
    QCOMPARE(sample.At(w / 2, h - 2), QColor(0x6982EE));
    sample.Show(LookState::Hover);
    QCOMPARE(sample.At(w / 2, 0), QColor(0x003C74));
    QCOMPARE(sample.At(w / 2, 1), QColor(0xFFF0CF));
    QCOMPARE(sample.At(w / 2, 2), QColor(0xFDD889));
    QCOMPARE(sample.At(w / 2, h - 3), QColor(0xF8B330));
    QCOMPARE(sample.At(w / 2, h - 2), QColor(0xE59710));
    sample.Show(LookState::Pressed);
    QCOMPARE(sample.At(w / 2, 0), QColor(0x003C74));
    QCOMPARE(sample.At(w / 2, 1), QColor(0xD1CCC1));
    QCOMPARE(sample.At(w / 2, h - 2), QColor(0xF2F1EE));
}

void ButtonLooksTest::BlueRoundedDerivesItsOwnColours()
{
    Sample sample(5);
    sample.UseColours();
    QCOMPARE(sample.At(w / 2, 0), ShiftColor(QColor(0x906030), -128));
    QCOMPARE(sample.At(w / 2, 1), ShiftColor(QColor(0x906030), 16));
    sample.Show(LookState::Hover);
    QCOMPARE(sample.At(w / 2, 1), ShiftColor(QColor(0x805020), 69));
    QCOMPARE(sample.At(w / 2, h - 2), ShiftColor(QColor(0x805020), -48));
}

void ButtonLooksTest::MandrakeRunsFromLightToDarkAndBackWhenPressed()
{
    const QColor face = System(SystemColour::ButtonFace);
    const int rows = h - 6;
    Sample sample(8);
    QCOMPARE(sample.At(w / 2, 3), MixColor(ShiftColor(face, 15), ShiftColor(face, -15), 1.0 / rows));
    QCOMPARE(sample.At(w / 2, h - 4), ShiftColor(face, -15));
    QCOMPARE(sample.At(w / 2, 0), ShiftColor(face, -96));
    QCOMPARE(sample.At(w / 2, 1), ShiftColor(face, 96));
    QCOMPARE(sample.At(w / 2, h - 2), ShiftColor(face, -48));
    sample.Show(LookState::Pressed);
    QCOMPARE(sample.At(w / 2, 3), MixColor(ShiftColor(face, -15), ShiftColor(face, 15), 1.0 / rows));
    QCOMPARE(sample.At(w / 2, h - 4), ShiftColor(face, 15));
}

void ButtonLooksTest::KeramikAndPlastikDeriveFromTheFace()
{
    const QColor face = System(SystemColour::ButtonFace);
    Sample plastik(7);
    QCOMPARE(plastik.At(w / 2, 0), ShiftColor(face, -96));
    QVERIFY(plastik.At(w / 2, 3).red() > plastik.At(w / 2, h - 4).red());
    Sample keramik(9);
    QCOMPARE(keramik.At(w / 2, 0), ShiftColor(face, -128));
    QCOMPARE(keramik.At(w / 2, 1), ShiftColor(face, 128));
    for (const int style : {7, 8, 9}) {
        Sample custom(style);
        custom.UseColours();
        const QColor middle = custom.At(w / 2, h / 3);
        QVERIFY(middle.red() > middle.blue() + 40);
    }
}

void ButtonLooksTest::PillLinesAreToldToThePixel_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("focused");
    QTest::addColumn<QByteArray>("pill");
    QTest::newRow("normal") << 1 << false << QByteArray("normal");
    QTest::newRow("hover") << 2 << false << QByteArray("hover");
    QTest::newRow("pressed") << 3 << false << QByteArray("pressed");
    QTest::newRow("disabled") << 4 << false << QByteArray("normal");
    QTest::newRow("normal with focus") << 1 << true << QByteArray("hover");
    QTest::newRow("hover with focus") << 2 << true << QByteArray("hover");
    QTest::newRow("pressed with focus") << 3 << true << QByteArray("pressed");
    QTest::newRow("disabled with focus") << 4 << true << QByteArray("hover");
}

void ButtonLooksTest::PillLinesAreToldToThePixel()
{
    QFETCH(int, state);
    QFETCH(bool, focused);
    QFETCH(QByteArray, pill);
    const PillColours &told = pill == "normal" ? normalPill : pill == "hover" ? hoverPill : pressedPill;
    Sample sample(10);
    sample.button.TakeFocus(focused);
    sample.Show(static_cast<LookState>(state));
    const QImage drawn = sample.Draw();

    QCOMPARE(drawn.pixel(w / 2, 14), told.body | 0xFF000000U);
    for (int line = 0; line < 18; ++line)
        QCOMPARE(drawn.pixel(line, 14), told.left[static_cast<std::size_t>(line)] | 0xFF000000U);
    for (int line = 0; line < 17; ++line)
        QCOMPARE(drawn.pixel(w - 17 + line, 14), told.right[static_cast<std::size_t>(line)] | 0xFF000000U);
    for (int line = 0; line < 12; ++line)
        QCOMPARE(drawn.pixel(w / 2, line), told.top[static_cast<std::size_t>(line)] | 0xFF000000U);
    for (int line = 0; line < 11; ++line)
        QCOMPARE(drawn.pixel(w / 2, h - 11 + line),
                 told.bottom[static_cast<std::size_t>(line)] | 0xFF000000U);
}

void ButtonLooksTest::PillColoursDoNotDependOnAnything()
{
    Sample plain(10);
    Sample changed(10);
    changed.UseColours();
    changed.around.palette = QPalette(Qt::black);
    QCOMPARE(changed.Draw(), plain.Draw());
}

void ButtonLooksTest::PillCornersRunOnFromTheLines()
{
    Sample sample(10);
    for (const LookState state : {LookState::Normal, LookState::Hover, LookState::Pressed}) {
        sample.Show(state);
        const QImage drawn = sample.Draw();
        for (const int x : {0, w - 1}) {
            for (const int y : {0, h - 1})
                QVERIFY(qAlpha(drawn.pixel(x, y)) < 30);
        }
        // The border is seen all along the curve: from the level line each column down to the upright one.
        for (const int x : {4, 7, 12, w - 5, w - 8, w - 13}) {
            int darkest = 255;
            for (int y = 0; y < 9; ++y) {
                if (drawn.pixelColor(x, y).alpha() > 200)
                    darkest = std::min(darkest, drawn.pixelColor(x, y).lightness());
            }
            QVERIFY2(darkest < drawn.pixelColor(x, 11).lightness(), qPrintable(QString::number(x)));
        }
        QVERIFY(drawn.pixelColor(16, 0).lightness() - drawn.pixelColor(17, 0).lightness() < 40);
    }
}

void ButtonLooksTest::NarrowPillDrawsWithoutFailure()
{
    for (const int width : {20, 30, 33, 34, 35, 36}) {
        Sample sample(10);
        sample.button.TakeSize(width * twips, 24 * twips);
        const QImage drawn = sample.Draw();
        QCOMPARE(drawn.width(), width);
        for (int x = 4; x < width - 4; ++x)
            QCOMPARE(drawn.pixelColor(x, 12).alpha(), 255);
    }
}

void ButtonLooksTest::DisabledFaceIgnoresTheButtonsOwnColours()
{
    for (const int style : {0, 1, 2, 3}) {
        Sample sample(style);
        sample.UseColours();
        sample.Show(LookState::Disabled);
        QCOMPARE(sample.At(20, 10), System(SystemColour::ButtonFace));
    }
}

void ButtonLooksTest::BackColorWithoutCustomColoursChangesNothing()
{
    for (int style = 0; style <= 10; ++style) {
        for (const LookState state : allStates) {
            Sample plain(style);
            Sample coloured(style);
            coloured.UseColours();
            coloured.button.SetUseCustomColors(false);
            plain.Show(state);
            coloured.Show(state);
            QCOMPARE(coloured.Draw(), plain.Draw());
        }
    }
}

void ButtonLooksTest::EveryStateDiffers()
{
    for (int style = 0; style <= 10; ++style) {
        QList<QImage> pictures;
        for (const LookState state : allStates) {
            Sample sample(style);
            sample.button.SetCaption(u"Make"_s);
            sample.Show(state);
            pictures.append(sample.Draw());
        }
        QVERIFY2(pictures[0] != pictures[2], qPrintable(QString::number(style)));
        QVERIFY2(pictures[0] != pictures[3], qPrintable(QString::number(style)));
        // The looks 0 and 1 tell no difference between normal and hovered.
        if (style > 1)
            QVERIFY2(pictures[0] != pictures[1], qPrintable(QString::number(style)));
    }
}

void ButtonLooksTest::EveryFocusIsVisible()
{
    for (int style = 0; style <= 11; ++style) {
        for (const bool shows : {false, true}) {
            Sample sample(style);
            const QImage without = sample.Draw();
            sample.button.TakeFocus(true);
            sample.button.SetShowFocus(shows);
            sample.around.marksFocus = !shows;
            QVERIFY2(sample.Draw() != without, qPrintable(QString::number(style)));
        }
    }
    Sample unmarked(0);
    const QImage without = unmarked.Draw();
    unmarked.button.TakeFocus(true);
    QCOMPARE(unmarked.Draw(), without);
}

void ButtonLooksTest::ShapesAreTold()
{
    for (const int style : {0, 1, 2, 3, 4, 6, 11})
        QVERIFY(ShapeOf(Sample(style).button).isEmpty());
    const auto holds = [](const QRegion &shape, int x, int y) { return shape.contains(QPoint(x, y)); };
    for (const int style : {5, 7}) {
        const QRegion shape = ShapeOf(Sample(style).button);
        QCOMPARE(shape.boundingRect(), QRect(0, 0, w, h));
        QVERIFY(!holds(shape, 0, 0));
        QVERIFY(holds(shape, 1, 0));
        QVERIFY(holds(shape, 0, 1));
        QVERIFY(!holds(shape, w - 1, 0));
        QVERIFY(!holds(shape, 0, h - 1));
        QVERIFY(holds(shape, 2, h - 1));
        QVERIFY(!holds(shape, w - 1, h - 1));
        QVERIFY(holds(shape, w - 3, h - 1));
    }
    for (const int style : {8, 9}) {
        const QRegion shape = ShapeOf(Sample(style).button);
        QCOMPARE(shape.boundingRect(), QRect(0, 0, w, h));
        QVERIFY(!holds(shape, 1, 0));
        QVERIFY(holds(shape, 2, 0));
        QVERIFY(!holds(shape, w - 2, 0));
        QVERIFY(holds(shape, w - 4, 0));
        QVERIFY(!holds(shape, 1, h - 1));
        QVERIFY(holds(shape, 4, h - 1));
        QVERIFY(!holds(shape, w - 1, h - 1));
    }
    const QRegion pill = ShapeOf(Sample(10).button);
    QCOMPARE(pill.boundingRect(), QRect(0, 0, w, h));
    for (const QPoint &corner : {QPoint(0, 0), QPoint(w - 1, 0), QPoint(0, h - 1), QPoint(w - 1, h - 1)})
        QVERIFY(!pill.contains(corner));
    QVERIFY(pill.contains(QPoint(0, 9)));
    QVERIFY(pill.contains(QPoint(9, 0)));
    QVERIFY(pill.contains(QPoint(3, 3)));
}

void ButtonLooksTest::FaceStaysInItsShape()
{
    for (const int style : {5, 7, 8, 9, 10}) {
        Sample sample(style);
        const QImage drawn = sample.Draw();
        const QRegion shape = ShapeOf(sample.button);
        for (int y = 0; y < h; ++y) {
            for (int x = 0; x < w; ++x) {
                if (!shape.contains(QPoint(x, y)))
                    QVERIFY2(drawn.pixelColor(x, y).alpha() < 220,
                             qPrintable(u"%1: %2,%3"_s.arg(style).arg(x).arg(y)));
            }
        }
    }
}

void ButtonLooksTest::ThemeDrawsWithTheDesktopsStyle()
{
    Sample sample(6);
    const QImage normal = sample.Draw();
    QCOMPARE(sample.button.Style(), ButtonStyle::SystemTheme);
    sample.button.TakeFocus(true);
    QVERIFY(sample.Draw() != normal);
    QCOMPARE(sample.button.Style(), ButtonStyle::SystemTheme);
}

void ButtonLooksTest::ThemeThatCannotDrawIsGivenUpForGood()
{
    BlankStyle blank;
    for (const QStyle *style : {static_cast<const QStyle *>(&blank), static_cast<const QStyle *>(nullptr)}) {
        Sample sample(6);
        sample.around.style = style;
        const QImage drawn = sample.Draw();
        QCOMPARE(sample.button.Style(), ButtonStyle::BlueRounded);
        QCOMPARE(drawn.pixelColor(w / 2, 0), QColor(0x003C74));
        sample.around.style = QApplication::style();
        QCOMPARE(sample.Draw(), drawn);
    }
}

void ButtonLooksTest::UnknownStyleDrawsOnlyTheCaption()
{
    for (const int style : {11, -1}) {
        Sample sample(style);
        QImage nothing(w, h, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        QCOMPARE(sample.Draw(), nothing);
        sample.button.SetCaption(u"Make"_s);
        const QRect ink = Difference(sample.Draw(), nothing);
        QVERIFY(ink.width() > 10 && ink.height() > 5);
        QVERIFY(std::abs(ink.center().x() - w / 2) < 4);
    }
}

void ButtonLooksTest::PressedMovesTheIconAndNotTheText()
{
    for (int style = 0; style <= 10; ++style) {
        Sample icon(style);
        icon.button.SetIcon(Picture(RedSquare()));
        icon.button.SetIconAlign(IconPlace::Centre);
        icon.button.SetIconSize(16);
        QCOMPARE(RedBox(icon.Draw()), QRect((w - 16) / 2, (h - 16) / 2, 16, 16));
        icon.Show(LookState::Pressed);
        QCOMPARE(RedBox(icon.Draw()), QRect((w - 16) / 2 + 1, (h - 16) / 2 + 1, 16, 16));

        Sample empty(style);
        Sample text(style);
        text.button.SetCaption(u"Make"_s);
        const QRect normal = Difference(text.Draw(), empty.Draw());
        empty.Show(LookState::Pressed);
        text.Show(LookState::Pressed);
        QCOMPARE(Difference(text.Draw(), empty.Draw()), normal);
    }
}

void ButtonLooksTest::IconStandsInItsFivePlaces()
{
    const QList<std::pair<IconPlace, QPoint>> rows{{IconPlace::Centre, {(w - 16) / 2, (h - 16) / 2}},
                                                   {IconPlace::Left, {4, (h - 16) / 2}},
                                                   {IconPlace::Right, {w - 16 - 4, (h - 16) / 2}},
                                                   {IconPlace::Top, {(w - 16) / 2, 4}},
                                                   {IconPlace::Bottom, {(w - 16) / 2, h - 16 - 4}}};
    for (const auto &[place, corner] : rows) {
        Sample sample(0);
        sample.button.SetIcon(Picture(RedSquare()));
        sample.button.SetIconAlign(place);
        sample.button.SetIconSize(16);
        QCOMPARE(RedBox(sample.Draw()), QRect(corner, QSize(16, 16)));
    }
}

void ButtonLooksTest::MarginIsTheLooks()
{
    const QList<int> margins{4, 4, 4, 4, 4, 5, 4, 5, 4, 7, 7, 4};
    for (int style = 0; style <= 11; ++style) {
        Sample sample(style);
        sample.button.SetIcon(Picture(RedSquare()));
        sample.button.SetIconAlign(IconPlace::Left);
        sample.button.SetIconSize(16);
        QCOMPARE(RedBox(sample.Draw()).left(), margins[style]);
    }
}

void ButtonLooksTest::HighlightCastsAShadow()
{
    Sample sample(4);
    sample.button.SetIcon(Picture(RedSquare()));
    sample.button.SetIconAlign(IconPlace::Centre);
    sample.button.SetIconSize(16);
    const QRect normal = RedBox(sample.Draw());
    sample.Show(LookState::Hover);
    const QImage hovered = sample.Draw();
    QCOMPARE(RedBox(hovered), normal.translated(-1, -1));
    QCOMPARE(hovered.pixelColor(normal.center().x(), normal.bottom()), QColor(0x80, 0x80, 0x80));
    QCOMPARE(hovered.pixelColor(normal.bottomRight()), QColor(0x80, 0x80, 0x80));
    QCOMPARE(hovered.pixelColor(normal.topLeft() - QPoint(2, 2)), hovered.pixelColor(1, 1));
}

void ButtonLooksTest::CaptionStandsInItsFivePlaces()
{
    const auto inkAt = [](CaptionPlace place) {
        Sample empty(0);
        Sample sample(0);
        sample.button.SetCaption(u"HH"_s);
        sample.button.SetCaptionAlign(place);
        sample.button.TakeSize(w * twips, 60 * twips);
        empty.button.TakeSize(w * twips, 60 * twips);
        return Difference(sample.Draw(), empty.Draw());
    };
    const QRect centre = inkAt(CaptionPlace::Centre);
    QVERIFY(std::abs(centre.center().x() - w / 2) < 3);
    QVERIFY(std::abs(centre.center().y() - 30) < 4);
    QVERIFY(inkAt(CaptionPlace::Left).left() >= 4 && inkAt(CaptionPlace::Left).left() < 8);
    QCOMPARE(inkAt(CaptionPlace::Left).center().y(), centre.center().y());
    QVERIFY(inkAt(CaptionPlace::Right).right() < w - 4 && inkAt(CaptionPlace::Right).right() > w - 9);
    QVERIFY(inkAt(CaptionPlace::Top).top() >= 4 && inkAt(CaptionPlace::Top).top() < 12);
    QVERIFY(inkAt(CaptionPlace::Bottom).bottom() < 56 && inkAt(CaptionPlace::Bottom).bottom() > 46);
}

void ButtonLooksTest::CaptionHasItsColours()
{
    const auto holds = [](const QImage &image, const QColor &colour) {
        for (int y = 4; y < image.height() - 4; ++y) {
            for (int x = 4; x < image.width() - 4; ++x) {
                if (image.pixelColor(x, y) == colour)
                    return true;
            }
        }
        return false;
    };
    const auto drawn = [](LookState state, bool custom) {
        Sample sample(0);
        sample.button.SetCaption(u"\u2588\u2588"_s);
        if (custom)
            sample.UseColours();
        sample.Show(state);
        return sample.Draw();
    };
    for (const LookState state : {LookState::Normal, LookState::Hover, LookState::Pressed})
        QVERIFY(holds(drawn(state, false), System(SystemColour::ButtonText)));
    QVERIFY(holds(drawn(LookState::Normal, true), QColor(255, 0, 0)));
    QVERIFY(holds(drawn(LookState::Hover, true), QColor(0, 255, 0)));
    QVERIFY(holds(drawn(LookState::Pressed, true), QColor(0, 255, 0)));
    QVERIFY(holds(drawn(LookState::Disabled, false), System(SystemColour::GrayText)));
    QVERIFY(holds(drawn(LookState::Disabled, true), System(SystemColour::GrayText)));
}

void ButtonLooksTest::LongCaptionIsElided()
{
    for (int style = 0; style <= 10; ++style) {
        Sample empty(style);
        Sample sample(style);
        sample.button.SetCaption(u"A caption that is much too long for its box"_s);
        const QRect ink = Difference(sample.Draw(), empty.Draw());
        QVERIFY(ink.left() >= 3);
        QVERIFY(ink.right() <= w - 4);
        QVERIFY(ink.width() > w / 2);
    }
}

void ButtonLooksTest::RightToLeftCaptionIsDrawn()
{
    Sample empty(0);
    Sample sample(0);
    sample.button.SetCaption(u"\u05E9\u05DC\u05D5\u05DD"_s);
    const QRect centred = Difference(sample.Draw(), empty.Draw());
    QVERIFY(centred.width() > 8);
    QVERIFY(std::abs(centred.center().x() - w / 2) < 4);
    sample.button.SetCaptionAlign(CaptionPlace::Left);
    QVERIFY(Difference(sample.Draw(), empty.Draw()).left() < 10);
    sample.button.SetCaptionAlign(CaptionPlace::Right);
    QVERIFY(Difference(sample.Draw(), empty.Draw()).right() > w - 10);
}

void ButtonLooksTest::TinyFacesAreDrawn()
{
    for (int style = 0; style <= 10; ++style) {
        const Look *look = LookOf(static_cast<ButtonStyle>(style));
        for (const QSize &size : {QSize(10, 10), QSize(1, 1), QSize(3, 2), QSize(10, 200)}) {
            for (const LookState state : allStates) {
                QImage image(size, QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::transparent);
                QPainter painter(&image);
                Canvas canvas(painter, size, size, 1);
                ButtonFace face;
                face.state = state;
                face.palette = TestPalette();
                face.style = QApplication::style();
                face.back = System(SystemColour::ButtonFace);
                face.highlight = System(SystemColour::Highlight);
                look->DrawFace(canvas, face);
                look->Shape(size);
                if (size.width() > 9)
                    QVERIFY(image.pixelColor(size.width() / 2, size.height() / 2).alpha() > 0);
            }
        }
    }
}

void ButtonLooksTest::ScalesKeepSharpLines()
{
    // Along a row through the middle, the frame's line has its own colour in each of its pixels and is as
    // thick at the right as at the left.
    for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        Sample sample(5, scale);
        const QImage drawn = sample.Draw();
        QCOMPARE(drawn.size(), QSize(qRound(w * scale), qRound(h * scale)));
        const int thick = qRound(scale);
        const int middle = drawn.height() / 2;
        for (int x = 0; x < thick; ++x) {
            QCOMPARE(drawn.pixelColor(x, middle), QColor(0x003C74));
            QCOMPARE(drawn.pixelColor(drawn.width() - 1 - x, middle), QColor(0x003C74));
        }
        QVERIFY(drawn.pixelColor(thick, middle).lightness() > 200);
        QVERIFY(drawn.pixelColor(drawn.width() - 1 - thick, middle).lightness() > 200);
        QVERIFY(drawn.pixelColor(drawn.width() / 2, thick).lightness() > 200);

        Sample pill(10, scale);
        const QImage pillDrawn = pill.Draw();
        QCOMPARE(pillDrawn.pixel(pillDrawn.width() / 2, 0), normalPill.top[0] | 0xFF000000U);
        QCOMPARE(pillDrawn.pixel(pillDrawn.width() / 2, thick), normalPill.top[1] | 0xFF000000U);
    }
}

void ButtonLooksTest::SystemColoursHaveOneTable()
{
    const QPalette palette = TestPalette();
    QCOMPARE(TranslateColour(0x8000000F, palette), palette.color(QPalette::Button));
    QCOMPARE(TranslateColour(0x8000000D, palette), palette.color(QPalette::Highlight));
    QCOMPARE(TranslateColour(0x80000012, palette), palette.color(QPalette::ButtonText));
    QCOMPARE(TranslateColour(0x80000011, palette), palette.color(QPalette::Disabled, QPalette::ButtonText));
    QCOMPARE(TranslateColour(0x80000010, palette), palette.color(QPalette::Dark));
    QCOMPARE(TranslateColour(0x80000005, palette), palette.color(QPalette::Base));
    QCOMPARE(TranslateColour(0x80000017, palette), palette.color(QPalette::ToolTipBase));
    QCOMPARE(TranslateColour(0x80000018, palette), palette.color(QPalette::ToolTipText));
    QCOMPARE(TranslateColour(0x00112233, palette), QColor(0x33, 0x22, 0x11));
    QVERIFY(!TranslateColour(0x80000019, palette).isValid());
    QVERIFY(!TranslateColour(0x01000000, palette).isValid());
}

QTEST_MAIN(ButtonLooksTest)
#include "ButtonLooksTest.moc"
