// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "gui/widgets/ButtonSample.h"
#include "widgets/looks/Canvas.h"
#include "widgets/looks/PillColours.h"

#include <QTest>

using namespace tressel;
using namespace tressel::test;
using namespace Qt::StringLiterals;

class ButtonLooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ClassicHasItsFaceAndEdges();
    void HotTrackAndFlatHaveTheirEdges();
    void DoubleLineHasTwoFramesAndItsBox();
    void HighlightIsPaleAndFramedUnderThePointer();
    void PillLinesAreToldToThePixel_data();
    void PillLinesAreToldToThePixel();
    void PillColoursDoNotDependOnAnything();
    void PillCornersRunOnFromTheLines();
    void NarrowPillDrawsWithoutFailure();
    void DisabledFaceIgnoresTheButtonsOwnColours();
    void BackColorWithoutCustomColoursChangesNothing();
    void EveryStateDiffers();
    void EveryFocusIsVisible();
    void FocusMarkKeepsOffTheCaption();
    void FocusMarkIsEvenAtEachScale();
    void ShapesAreTold();
    void FaceStaysInItsShape();
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

void ButtonLooksTest::FocusMarkKeepsOffTheCaption()
{
    for (int style = 0; style <= 11; ++style) {
        Sample sample(style);
        sample.button.SetShowFocus(true);
        sample.Show(LookState::Pressed);
        const QRect aroundText = sample.button.TextBox().adjusted(-1, -1, 1, 1);
        const QImage unfocused = sample.Draw();
        sample.button.TakeFocus(true);
        QVERIFY(sample.Draw() != unfocused);
        QCOMPARE(sample.Draw().copy(aroundText), unfocused.copy(aroundText));
    }
    // A hovered button has no ring of focus; the mark takes its place.
    Sample hovered(5);
    hovered.Show(LookState::Hover);
    const QImage without = hovered.Draw();
    hovered.button.TakeFocus(true);
    hovered.around.marksFocus = true;
    QVERIFY(hovered.Draw() != without);
}

void ButtonLooksTest::FocusMarkIsEvenAtEachScale()
{
    for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        Sample sample(11, scale);
        sample.button.TakeFocus(true);
        sample.button.SetShowFocus(true);
        const QImage drawn = sample.Draw();
        const QRect mark = Difference(drawn, Sample(11, scale).Draw());
        const int dot = std::max(1, qRound(scale));
        for (int x = 0; x < mark.width(); ++x) {
            const bool isInk = qAlpha(drawn.pixel(mark.left() + x, mark.top())) > 0;
            const bool isEnd = x >= mark.width() - dot;
            QVERIFY2(isEnd || isInk == (x / dot % 2 == 0), qPrintable(u"%1: %2"_s.arg(scale).arg(x)));
        }
    }
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

TRESSEL_GUI_TEST(ButtonLooksTest)
#include "ButtonLooksTest.moc"
