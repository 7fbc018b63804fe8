// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "gui/widgets/ButtonSample.h"
#include "widgets/looks/Look.h"
#include "widgets/looks/PillColours.h"

#include <QPainter>
#include <QProxyStyle>
#include <QTest>

using namespace tressel;
using namespace tressel::test;
using namespace Qt::StringLiterals;

namespace {

/// A style that draws no button at all.
class BlankStyle : public QProxyStyle {
public:
    void drawControl(ControlElement, const QStyleOption *, QPainter *, const QWidget *) const override { }
};

QByteArray RedSquare()
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\"><rect width=\"8\" height=\"8\" "
           "fill=\"#ff0000\"/></svg>";
}

QByteArray FaintSquare()
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\"><rect width=\"8\" height=\"8\" "
           "fill=\"#ff0000\" fill-opacity=\"0.3\"/></svg>";
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

} // namespace

class ButtonPaintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ThemeDrawsWithTheDesktopsStyle();
    void ThemeThatCannotDrawIsGivenUpForGood();
    void UnknownStyleDrawsOnlyTheCaption();
    void PressedMovesTheIconAndNotTheText();
    void IconStandsInItsFivePlaces();
    void MarginIsTheLooks();
    void HighlightCastsAShadow();
    void CaptionStandsInItsFivePlaces();
    void CaptionHasItsColours();
    void TextOfLightFacesIsTheDesktopsWhereThatIsDark();
    void DisabledCaptionHasTheDesktopsOwnGrey();
    void ContrastIsKeptWhereThereIsRoom();
    void LongCaptionIsElided();
    void RightToLeftCaptionIsDrawn();
    void TinyFacesAreDrawn();
    void ScalesKeepSharpLines();
    void SystemColoursHaveOneTable();
};

void ButtonPaintingTest::ThemeDrawsWithTheDesktopsStyle()
{
    Sample sample(6);
    const QImage normal = sample.Draw();
    QCOMPARE(sample.button.Style(), ButtonStyle::SystemTheme);
    sample.button.TakeFocus(true);
    QVERIFY(sample.Draw() != normal);
    QCOMPARE(sample.button.Style(), ButtonStyle::SystemTheme);
}

void ButtonPaintingTest::ThemeThatCannotDrawIsGivenUpForGood()
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

void ButtonPaintingTest::UnknownStyleDrawsOnlyTheCaption()
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

void ButtonPaintingTest::PressedMovesTheIconAndNotTheText()
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

void ButtonPaintingTest::IconStandsInItsFivePlaces()
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

void ButtonPaintingTest::MarginIsTheLooks()
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

void ButtonPaintingTest::HighlightCastsAShadow()
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

    // A pixel that the icon hardly touches differs from the face as well.
    sample.button.SetIcon(Picture(FaintSquare()));
    QCOMPARE(sample.Draw().pixelColor(normal.bottomRight()), QColor(0x80, 0x80, 0x80));
}

void ButtonPaintingTest::CaptionStandsInItsFivePlaces()
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

void ButtonPaintingTest::CaptionHasItsColours()
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

void ButtonPaintingTest::TextOfLightFacesIsTheDesktopsWhereThatIsDark()
{
    for (const int style : {5, 10}) {
        Sample sample(style);
        sample.button.SetCaption(u"\u2588\u2588"_s);
        QCOMPARE(sample.At(w / 2, h / 2), System(SystemColour::ButtonText));
        sample.around.palette.setColor(QPalette::ButtonText, Qt::white);
        QCOMPARE(sample.At(w / 2, h / 2), QColor(Qt::black));
    }
}

void ButtonPaintingTest::DisabledCaptionHasTheDesktopsOwnGrey()
{
    for (const QRgb grey : {0x384048U, 0xBEBEBEU, 0x808080U}) {
        for (const QColor &text : {QColor(Qt::black), QColor(Qt::white)}) {
            for (int style = 0; style <= 11; ++style) {
                Sample sample(style);
                sample.around.palette.setColor(QPalette::ButtonText, text);
                sample.around.palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(grey));
                sample.button.SetCaption(u"\u2588\u2588"_s);
                sample.Show(LookState::Disabled);
                QCOMPARE(sample.At(w / 2, h / 2), QColor(grey));
            }
        }
    }
}

void ButtonPaintingTest::ContrastIsKeptWhereThereIsRoom()
{
    QCOMPARE(ContrastOf(Qt::black, Qt::white), 21.0);
    const QColor pale(0xEF, 0xEF, 0xEF);
    const QColor dark(0x31, 0x31, 0x31);
    QCOMPARE(WithContrast(QColor(0x80, 0x80, 0x80), {pale}), QColor(0x80, 0x80, 0x80));
    const QColor darker = WithContrast(QColor(0xC0, 0xC0, 0xC0), {pale});
    QVERIFY(darker.lightness() < 0xC0 && ContrastOf(darker, pale) >= 2 && ContrastOf(darker, pale) < 2.3);
    // Not even black is dark enough here.
    const QColor lighter = WithContrast(QColor(0x20, 0x20, 0x20), {dark});
    QVERIFY(lighter.lightness() > 0x31 && ContrastOf(lighter, dark) >= 2);
    const QColor both = WithContrast(QColor(0x20, 0x20, 0x20), {dark, QColor(0x50, 0x50, 0x50)});
    QVERIFY(ContrastOf(both, QColor(0x50, 0x50, 0x50)) >= 2);
    QVERIFY(ContrastOf(LighterBy(dark, dark, 3), dark) >= 3);
    QCOMPARE(LighterBy(QColor(Qt::white), pale, 3), QColor(Qt::white));
}

void ButtonPaintingTest::LongCaptionIsElided()
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

void ButtonPaintingTest::RightToLeftCaptionIsDrawn()
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

void ButtonPaintingTest::TinyFacesAreDrawn()
{
    for (int style = 0; style <= 10; ++style) {
        const Look *look = LookOf(static_cast<ButtonStyle>(style));
        for (const QSize &size : {QSize(10, 10), QSize(1, 1), QSize(3, 2), QSize(10, 200)}) {
            for (const LookState state : allStates) {
                QImage image(size, QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::transparent);
                QPainter painter(&image);
                Canvas canvas(painter, size, size, 1);
                FaceToDraw face;
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

void ButtonPaintingTest::ScalesKeepSharpLines()
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

void ButtonPaintingTest::SystemColoursHaveOneTable()
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

TRESSEL_GUI_TEST(ButtonPaintingTest)
#include "ButtonPaintingTest.moc"
