// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "gui/widgets/ButtonSample.h"
#include "machine/PlainColours.h"
#include "widgets/looks/Canvas.h"

#include <QHash>
#include <QStyle>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace tressel;
using namespace tressel::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(tressel::LookState)

class ButtonLooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ClassicHasItsFaceAndEdges();
    void HotTrackAndFlatHaveTheirEdges();
    void DoubleLineHasTwoFramesAndItsBox();
    void HighlightIsPaleAndFramedUnderThePointer();
    void DisabledFaceIgnoresTheButtonsOwnColours();
    void BackColorWithoutCustomColoursChangesNothing();
    void EveryStateDiffers_data();
    void EveryStateDiffers();
    void EdgesAreSeenOnDarkFaces_data();
    void EdgesAreSeenOnDarkFaces();
    void RaisedEdgesStayRaisedOnDarkFaces();
    void HighlightKeepsTheHueOfItsOwnColour();
    void DisabledBlueFaceIsTheDesktopsOwn();
    void EveryFocusIsVisible();
    void FocusMarkKeepsOffTheCaption();
    void FocusMarkIsOneSolidLineAtEachScale();
    void FocusHasNoLineOverARing();
    void FocusMarkLeavesARingOfAnotherKindAlone();
    void InnerLineFollowsTheCorner();
    void SoftEdgesAreNotCut();
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

void ButtonLooksTest::EveryStateDiffers_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("dark");
    for (int style = 0; style <= 10; ++style) {
        QTest::addRow("light %d", style) << style << false;
        QTest::addRow("dark %d", style) << style << true;
    }
}

void ButtonLooksTest::EveryStateDiffers()
{
    QFETCH(int, style);
    QFETCH(bool, dark);
    QHash<LookState, QImage> drawn;
    for (const LookState state : allStates) {
        Sample sample(style);
        sample.around.palette = dark ? DarkPalette() : QApplication::style()->standardPalette();
        sample.button.SetCaption(u"Make"_s);
        sample.Show(state);
        drawn.insert(state, sample.Draw());
    }
    const auto differs = [&](LookState state, double least) {
        const double share = SeenDifference(drawn[LookState::Normal], drawn[state]);
        return QTest::qVerify(share >= least, "SeenDifference", qPrintable(QString::number(share)), __FILE__,
                              __LINE__);
    };
    // A thin edge all around is 8 % of this button, its caption some 2 %. Look 2 changes two of its sides.
    const double edges = style == 2 ? 0.035 : 0.06;
    if (!differs(LookState::Pressed, edges) || !differs(LookState::Disabled, 0.02))
        return;
    // The looks 0 and 1 tell no difference between normal and hovered, and look 6 is the theme's affair.
    if (style > 1 && style != 6)
        differs(LookState::Hover, edges);
}

void ButtonLooksTest::EdgesAreSeenOnDarkFaces_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<LookState>("state");
    for (const int style : {0, 1, 2, 3, 8, 9}) {
        for (const LookState state : allStates)
            QTest::addRow("look %d, state %d", style, static_cast<int>(state)) << style << state;
    }
}

void ButtonLooksTest::EdgesAreSeenOnDarkFaces()
{
    QFETCH(int, style);
    QFETCH(LookState, state);
    Sample sample(style);
    sample.around.palette = DarkPalette();
    sample.Show(state);
    const QImage drawn = sample.Draw();
    const QColor face = drawn.pixelColor(w / 2, h / 2);
    for (const QPoint &edge :
         {QPoint(w / 2, 0), QPoint(w / 2, h - 1), QPoint(0, h / 2), QPoint(w - 1, h / 2)}) {
        const double contrast = ContrastOf(drawn.pixelColor(edge), face);
        QVERIFY2(contrast >= 2, qPrintable(u"%1,%2: %3"_s.arg(edge.x()).arg(edge.y()).arg(contrast)));
    }
}

void ButtonLooksTest::RaisedEdgesStayRaisedOnDarkFaces()
{
    for (const int style : {0, 1}) {
        Sample sample(style);
        sample.around.palette = DarkPalette();
        QVERIFY(sample.At(w / 2, 0).lightness() > sample.At(w / 2, h - 1).lightness() + 20);
        sample.Show(LookState::Pressed);
        QVERIFY(sample.At(w / 2, 0).lightness() + 20 < sample.At(w / 2, h - 1).lightness());
    }
}

void ButtonLooksTest::HighlightKeepsTheHueOfItsOwnColour()
{
    for (const QRgb own : {0xF4D09CU, 0x9CF4D0U, 0x2040C0U}) {
        const QColor colour = QColor::fromRgb(own);
        Sample sample(4);
        sample.button.SetUseCustomColors(true);
        sample.button.SetHighlightColor(ToNumber(colour));
        for (const LookState state : {LookState::Hover, LookState::Pressed}) {
            sample.Show(state);
            QVERIFY(std::abs(sample.At(20, 10).hslHue() - colour.hslHue()) <= 3);
            QVERIFY(sample.At(20, 10).lightness() > colour.lightness());
        }
    }
}

void ButtonLooksTest::DisabledBlueFaceIsTheDesktopsOwn()
{
    Sample sample(5);
    sample.Show(LookState::Disabled);
    QCOMPARE(sample.At(w / 2, h / 2), System(SystemColour::ButtonFace));
    QVERIFY(ContrastOf(sample.At(w / 2, 0), System(SystemColour::ButtonFace)) >= 2);
    sample.around.palette = DarkPalette();
    QCOMPARE(sample.At(w / 2, h / 2), DarkPalette().color(QPalette::Button));
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
        // With a pixel around it. The mark may be as round as its look, and so cut the corners of the box.
        const QRect text = sample.button.TextBox();
        const QImage unfocused = sample.Draw();
        sample.button.TakeFocus(true);
        QVERIFY(sample.Draw() != unfocused);
        for (const QRect &kept : {text.adjusted(-1, 5, 1, -5), text.adjusted(5, -1, -5, 1)})
            QCOMPARE(sample.Draw().copy(kept), unfocused.copy(kept));
    }
    // A hovered button has no ring of focus; the mark takes its place.
    Sample hovered(5);
    hovered.Show(LookState::Hover);
    const QImage without = hovered.Draw();
    hovered.button.TakeFocus(true);
    hovered.around.marksFocus = true;
    QVERIFY(hovered.Draw() != without);
}

void ButtonLooksTest::FocusMarkIsOneSolidLineAtEachScale()
{
    for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        Sample sample(11, scale);
        sample.button.TakeFocus(true);
        sample.button.SetShowFocus(true);
        const QImage drawn = sample.Draw();
        const QRect mark = Difference(drawn, Sample(11, scale).Draw());
        const int thick = qRound(3 * scale) - qRound(2 * scale);
        const QRect inside = mark.adjusted(thick, thick, -thick, -thick);
        for (int y = mark.top(); y <= mark.bottom(); ++y) {
            for (int x = mark.left(); x <= mark.right(); ++x) {
                const bool isInk = drawn.pixelColor(x, y) == System(SystemColour::ButtonText);
                QVERIFY2(isInk != inside.contains(x, y), qPrintable(u"%1: %2,%3"_s.arg(scale).arg(x).arg(y)));
            }
        }
    }
}

void ButtonLooksTest::FocusHasNoLineOverARing()
{
    for (const int style : {5, 6, 10}) {
        Sample sample(style);
        sample.button.TakeFocus(true);
        const QImage ring = sample.Draw();
        sample.button.SetShowFocus(true);
        sample.around.marksFocus = true;
        QCOMPARE(sample.Draw(), ring);
    }
}

void ButtonLooksTest::FocusMarkLeavesARingOfAnotherKindAlone()
{
    Sample sample(5);
    sample.Show(LookState::Hover);
    const QImage ring = sample.Draw();
    sample.button.TakeFocus(true);
    sample.around.marksFocus = true;
    const QImage marked = sample.Draw();
    QVERIFY(marked != ring);
    QCOMPARE(marked.copy(0, 0, w, 3), ring.copy(0, 0, w, 3));
    QCOMPARE(marked.copy(0, 0, 3, h), ring.copy(0, 0, 3, h));
}

void ButtonLooksTest::InnerLineFollowsTheCorner()
{
    constexpr int scale = 3;
    const QColor face = System(SystemColour::ButtonFace);
    for (const int style : {8, 9}) {
        Sample sample(style, scale);
        const QImage drawn = sample.Draw();
        // On the diagonal, three and a half pixels of the design from the middle of the corner's arc.
        const int place = static_cast<int>(scale * (5 - 3.5 * M_SQRT1_2));
        const QColor line = ShiftColor(face, style == 8 ? 96 : 128);
        const QColor seen = drawn.pixelColor(place, place);
        QVERIFY2(std::abs(seen.lightness() - line.lightness()) < 12,
                 qPrintable(u"%1: %2"_s.arg(style).arg(seen.name())));
    }
}

void ButtonLooksTest::SoftEdgesAreNotCut()
{
    constexpr int scale = 3;
    for (const int style : {5, 7, 8, 9, 10}) {
        Sample sample(style, scale);
        const QImage drawn = sample.Draw();
        const QRegion shape = ShapeOf(sample.button, scale);
        bool hasSoftPixels = false;
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) {
                const int alpha = drawn.pixelColor(x, y).alpha();
                hasSoftPixels = hasSoftPixels || (alpha > 40 && alpha < 215);
                if (alpha > 0)
                    QVERIFY2(shape.contains(QPoint(x / scale, y / scale)),
                             qPrintable(u"%1: %2,%3"_s.arg(style).arg(x).arg(y)));
            }
        }
        QVERIFY(hasSoftPixels);
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
