// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "gui/widgets/ButtonSample.h"
#include "widgets/looks/Canvas.h"

#include <QTest>

using namespace tressel;
using namespace tressel::test;

namespace {

struct Pixel {
    int x;
    int y;
    QRgb colour;
};

/// How many of a look's pixels differ from these; tells which.
int Differing(const QImage &drawn, const QList<Pixel> &told)
{
    int differing = 0;
    for (const auto &[x, y, colour] : told) {
        if ((drawn.pixel(x, y) & 0xFFFFFF) != colour) {
            qWarning("%d, %d: %06x, not %06x", x, y, drawn.pixel(x, y) & 0xFFFFFF, colour);
            ++differing;
        }
    }
    return differing;
}

QRgb Plain(const QColor &colour)
{
    return colour.rgb() & 0xFFFFFF;
}

/// A line of a gradient between two steps from the desktop's face.
QRgb Step(int from, int to, int line, int lines)
{
    const QColor face = System(SystemColour::ButtonFace);
    return Plain(MixColor(ShiftColor(face, from), ShiftColor(face, to), double(line) / lines));
}

/// One step from the desktop's face.
QRgb Step(int delta)
{
    return Plain(ShiftColor(System(SystemColour::ButtonFace), delta));
}

} // namespace

/// The looks whose faces are made of gradients and lines, each a step from one colour.
class GeneratedLooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BlueRoundedHasItsFixedColours();
    void BlueRoundedHasEachFixedColourAtItsPlace();
    void BlueRoundedDerivesItsOwnColours();
    void MandrakeRunsFromLightToDarkAndBackWhenPressed();
    void PlastikHasEachStepAtItsPlace();
    void KeramikHasEachStepAtItsPlace();
    void KeramikAndPlastikDeriveFromTheFace();
};

void GeneratedLooksTest::BlueRoundedHasItsFixedColours()
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

void GeneratedLooksTest::BlueRoundedHasEachFixedColourAtItsPlace()
{
    constexpr int x = w / 2;
    constexpr int y = h / 2;
    const auto slope = [](QRgb from, QRgb to, int line, int lines) {
        return Plain(MixColor(QColor(from), QColor(to), double(line) / lines));
    };
    Sample normal(5);
    QCOMPARE(Differing(normal.Draw(),
                       {{x, 0, 0x003C74},
                        {x, 1, 0xFBFBFA},
                        {x, 2, 0xFCFCFB},
                        {x, 3, slope(0xFCFCFB, 0xF0F0EA, 4, h)},
                        {x, h - 5, slope(0xFCFCFB, 0xF0F0EA, h - 4, h)},
                        {x, h - 4, 0xEBEBE6},
                        {x, h - 3, 0xE4E2DA},
                        {x, h - 2, 0xD6D0C5},
                        {1, y, 0xF0F0F0},
                        {2, y, 0xFAFAF9},
                        {w - 3, y, 0xF5F4F2},
                        {w - 2, y, 0xDBD7CD}}),
             0);
    Sample pressed(5);
    pressed.Show(LookState::Pressed);
    QCOMPARE(Differing(pressed.Draw(),
                       {{x, 0, 0x003C74},
                        {x, 1, 0xD1CCC1},
                        {x, 2, 0xDAD8CE},
                        {x, y, slope(0xE3E2DB, 0xE4E3DC, y + 1, h)},
                        {x, h - 3, 0xE4E3DC},
                        {x, h - 2, 0xF2F1EE},
                        {1, y, 0xDAD8CE},
                        {2, y, 0xE3E2DB}}),
             0);
    Sample hovered(5);
    hovered.Show(LookState::Hover);
    QCOMPARE(Differing(hovered.Draw(),
                       {{1, y, slope(0xFDD889, 0xF8B330, y - 1, h - 4)},
                        {w - 2, y, slope(0xFDD889, 0xF8B330, y - 1, h - 4)},
                        {x, 3, slope(0xFCFCFB, 0xF0F0EA, 4, h)}}),
             0);
}

void GeneratedLooksTest::BlueRoundedDerivesItsOwnColours()
{
    Sample sample(5);
    sample.UseColours();
    QCOMPARE(sample.At(w / 2, 0), ShiftColor(QColor(0x906030), -128));
    QCOMPARE(sample.At(w / 2, 1), ShiftColor(QColor(0x906030), 16));
    sample.Show(LookState::Hover);
    QCOMPARE(sample.At(w / 2, 1), ShiftColor(QColor(0x805020), 69));
    QCOMPARE(sample.At(w / 2, h - 2), ShiftColor(QColor(0x805020), -48));

    constexpr int x = w / 2;
    constexpr int y = h / 2;
    const auto back = [](int delta) { return Plain(ShiftColor(QColor(0x906030), delta)); };
    const auto lit = [](int delta) { return Plain(ShiftColor(QColor(0x805020), delta)); };
    Sample normal(5);
    normal.UseColours();
    QCOMPARE(Differing(normal.Draw(),
                       {{x, h - 4, back(-8)},
                        {x, h - 3, back(-21)},
                        {x, h - 2, back(-37)},
                        {1, y, back(-5)},
                        {2, y, back(5)},
                        {w - 3, y, back(-15)},
                        {w - 2, y, back(-32)}}),
             0);
    normal.button.TakeFocus(true);
    QCOMPARE(Differing(normal.Draw(),
                       {{x, 1, lit(69)}, {x, 2, lit(16)}, {x, h - 3, lit(5)}, {x, h - 2, lit(-24)}}),
             0);
    Sample pressed(5);
    pressed.UseColours();
    pressed.Show(LookState::Pressed);
    QCOMPARE(Differing(pressed.Draw(),
                       {{x, 0, back(-128)},
                        {x, 1, lit(-37)},
                        {x, 2, lit(-24)},
                        {x, h - 4, lit(-8)},
                        {x, h - 3, lit(-5)},
                        {x, h - 2, lit(5)},
                        {1, y, lit(-24)},
                        {w - 2, y, lit(-15)}}),
             0);
}

void GeneratedLooksTest::MandrakeRunsFromLightToDarkAndBackWhenPressed()
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

void GeneratedLooksTest::PlastikHasEachStepAtItsPlace()
{
    struct Row {
        LookState state;
        int frame;
        int top;
        int bottom;
        int topLine;
        int leftLine;
        int rightLine;
        int bottomLine;
    };
    const QList<Row> rows{{LookState::Normal, -96, 15, -15, 21, 8, -16, -21},
                          {LookState::Hover, -96, 21, 5, 21, 15, 8, -9},
                          {LookState::Pressed, -96, -21, -5, -37, -32, -15, 5},
                          {LookState::Disabled, -37, 15, -15, 21, 8, -16, -21}};
    for (const Row &row : rows) {
        Sample sample(7);
        sample.Show(row.state);
        QCOMPARE(Differing(sample.Draw(),
                           {{w / 2, 0, Step(row.frame)},
                            {0, h / 2, Step(row.frame)},
                            {w / 2, 1, Step(row.topLine)},
                            {w / 2, 2, Step(row.top, row.bottom, 3, h)},
                            {w / 2, h - 3, Step(row.top, row.bottom, h - 2, h)},
                            {w / 2, h - 2, Step(row.bottomLine)},
                            {1, h - 4, Step(row.topLine, row.leftLine, h - 4, h - 2)},
                            {w - 2, h - 4, Step(row.rightLine, row.bottomLine, h - 4, h - 2)}}),
                 0);
    }
}

void GeneratedLooksTest::KeramikHasEachStepAtItsPlace()
{
    struct Row {
        LookState state;
        int frame;
        int top;
        int aboveMiddle;
        int belowMiddle;
        int bottom;
        int shine;
        int shade;
    };
    const QList<Row> rows{{LookState::Normal, -128, 32, -21, -32, 5, 128, -48},
                          {LookState::Hover, -112, 37, 5, 5, 37, 128, -48},
                          {LookState::Pressed, -128, -53, -32, -37, -21, -48, -53},
                          {LookState::Disabled, -53, 5, -21, -21, 5, 128, -48}};
    for (const Row &row : rows) {
        Sample sample(9);
        sample.Show(row.state);
        QCOMPARE(Differing(sample.Draw(),
                           {{w / 2, 0, Step(row.frame)},
                            {w - 1, h / 2, Step(row.frame)},
                            {w / 2, 1, Step(row.shine)},
                            {w / 2, 2, Step(row.top, row.aboveMiddle, 3, h / 2)},
                            {w / 2, h / 2 - 1, Step(row.aboveMiddle)},
                            {w / 2, h / 2, Step(row.belowMiddle, row.bottom, 1, h / 2)},
                            {w / 2, h - 3, Step(row.belowMiddle, row.bottom, h / 2 - 2, h / 2)},
                            {w / 2, h - 2, Step(row.shade)},
                            {1, h / 2, Step(row.shine, -37, h / 2, h - 2)},
                            {w - 2, h / 2, Step(-21, row.shade, h / 2, h - 2)}}),
                 0);
    }
}

void GeneratedLooksTest::KeramikAndPlastikDeriveFromTheFace()
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

TRESSEL_GUI_TEST(GeneratedLooksTest)
#include "GeneratedLooksTest.moc"
