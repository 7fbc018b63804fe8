// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/CtlProgressWidget.h"

#include "gui/GuiTest.h"
#include "machine/PlainColours.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>

#include <cstdlib>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize size(200, 24);

QImage Drawn(const CtlProgress &bar, qreal scale = 1, const QColor &background = Qt::white)
{
    return DrawProgress(bar.Drawn(), background, QApplication::palette(), QApplication::font(), size * scale,
                        scale);
}

bool Holds(const QImage &image, const QRect &box, const QColor &colour)
{
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x) {
            if (image.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

} // namespace

class CtlProgressWidgetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BarReachesItsShareOfTheWidth();
    void TextIsInvertedWhereTheBarPasses();
    void TextHasNoFringes();
    void FillColourIsTrueOnAnyBackground();
    void StyleThreeWithACaptionShowsNoText();
    void ResizingAndRefreshingKeepWhatIsDrawn();
    void EveryPropertyIsTheControls();
    void EqualBoundsFailToTheCaller();
    void ARefusedPropertyEndsInTheFatalBoxOfTheForm();
    void GroundIsTheContainersUntilItIsWritten();
    void AccessTellsValueAndBounds();
    void AccessTellsNothingOfAnIdleBar();
    void FrameIsDrawn();
    void FrameIsSharpAtEachScale();

private:
    Form form{u"frmTest"_s};
};

void CtlProgressWidgetTest::BarReachesItsShareOfTheWidth()
{
    CtlProgress bar(form, u"bar"_s);
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        for (const int value : {0, 25, 99, 100, 150}) {
            bar.SetValue(value);
            const QImage drawn = Drawn(bar, scale);
            const int edge = qRound(drawn.width() * std::min(value, 100) / 100.0);
            if (edge > 0)
                QCOMPARE(drawn.pixelColor(edge - 1, 0), QColor(0, 0, 255));
            if (edge < drawn.width())
                QCOMPARE(drawn.pixelColor(edge, 0), QColor(Qt::white));
        }
        QCOMPARE(bar.Value(), 150);
    }
}

void CtlProgressWidgetTest::TextIsInvertedWhereTheBarPasses()
{
    CtlProgress bar(form, u"bar"_s);
    bar.SetForeColor(0);
    bar.SetCaptionStyle(CaptionStyle::Caption);
    bar.SetCaption(u"\u2588\u2588\u2588\u2588"_s);
    bar.SetValue(50);
    const QImage drawn = Drawn(bar);
    const QRect left(80, 0, 20, size.height());
    const QRect right(100, 0, 20, size.height());
    QVERIFY(Holds(drawn, left, QColor(255, 255, 0)));
    QVERIFY(Holds(drawn, left, QColor(0, 0, 255)));
    QVERIFY(!Holds(drawn, left, Qt::black));
    QVERIFY(Holds(drawn, right, Qt::black));
    QVERIFY(Holds(drawn, right, Qt::white));
    QVERIFY(!Holds(drawn, right, QColor(255, 255, 0)));
}

void CtlProgressWidgetTest::TextHasNoFringes()
{
    // Between a letter and its ground lie only mixtures of the two.
    const QColor ground(0x31, 0x31, 0x31);
    const QColor fill(0, 0, 255);
    const QColor turned = QColor::fromRgb(0xFFFFFF ^ 0x0000FF ^ 0x313131);
    CtlProgress bar(form, u"bar"_s);
    bar.SetForeColor(0xFFFFFF);
    bar.SetCaptionStyle(CaptionStyle::Caption);
    bar.SetCaption(u"Oo8S%"_s);
    bar.SetValue(100);
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        const QImage drawn = Drawn(bar, scale, ground);
        bool hasText = false;
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) {
                const QColor seen = drawn.pixelColor(x, y);
                const double part = double(seen.red()) / turned.red();
                hasText = hasText || part > 0.9;
                QVERIFY(std::abs(seen.green() - part * turned.green()) <= 3);
                QVERIFY(std::abs(seen.blue() - (fill.blue() + part * (turned.blue() - fill.blue()))) <= 3);
            }
        }
        QVERIFY(hasText);
    }
}

void CtlProgressWidgetTest::FillColourIsTrueOnAnyBackground()
{
    CtlProgress bar(form, u"bar"_s);
    bar.SetFillColor(0x30A020);
    bar.SetValue(100);
    for (const QColor &background : {QColor(Qt::white), QColor(0x31, 0x31, 0x31), QColor(0xF5, 0xF5, 0xF5)})
        QCOMPARE(Drawn(bar, 1, background).pixelColor(3, 3), QColor(0x20, 0xA0, 0x30));
}

void CtlProgressWidgetTest::StyleThreeWithACaptionShowsNoText()
{
    CtlProgress bar(form, u"bar"_s);
    bar.SetCaptionStyle(CaptionStyle::PercentWithoutCaption);
    bar.SetCaption(u"Splitting"_s);
    bar.SetValue(0);
    QImage blank(size, QImage::Format_RGB32);
    blank.fill(Qt::white);
    QCOMPARE(Drawn(bar), blank);
    bar.SetCaption(u""_s);
    bar.SetValue(0);
    QVERIFY(Drawn(bar) != blank);
}

void CtlProgressWidgetTest::ResizingAndRefreshingKeepWhatIsDrawn()
{
    CtlProgress bar(form, u"bar"_s);
    CtlProgressWidget widget;
    widget.SetControl(&bar);
    bar.SetValue(50);
    bar.SetMax(200);
    widget.resize(100, 20);
    bar.Refresh();
    widget.TakeOver();
    const QImage drawn = widget.grab().toImage();
    QCOMPARE(drawn.pixelColor(45, 2), QColor(0, 0, 255));
    QVERIFY(drawn.pixelColor(55, 2) != QColor(0, 0, 255));
    QCOMPARE(widget.Text(), u"50%"_s);
}

void CtlProgressWidgetTest::EveryPropertyIsTheControls()
{
    CtlProgressWidget widget;
    const QList<std::pair<const char *, QVariant>> rows{
        {"Appearance", 0},  {"Caption", u"x"_s}, {"Max", 400},        {"Min", -4},
        {"Enabled", false}, {"BorderStyle", 0},  {"CaptionStyle", 1}, {"FillColor", 5U},
        {"ForeColor", 6U},  {"BackColor", 7U},   {"Value", 12},
    };
    for (const auto &[name, value] : rows) {
        QVERIFY2(widget.setProperty(name, value), name);
        QCOMPARE(widget.property(name), value);
    }
    QCOMPARE(widget.property("text").toString(), u"x"_s);
    QCOMPARE(widget.Control().Max(), 400);
    QCOMPARE(widget.CaptionFont(), widget.font());
    QVERIFY(widget.setProperty("CaptionFont", QFont(u"Serif"_s, 14)));
    QCOMPARE(widget.property("CaptionFont").value<QFont>().pointSizeF(), 14.0);
    QCOMPARE(widget.Control().CaptionFont()->family, u"Serif"_s);
}

void CtlProgressWidgetTest::EqualBoundsFailToTheCaller()
{
    CtlProgressWidget widget;
    widget.SetMax(0);
    int number = 0;
    try {
        widget.SetValue(3);
    } catch (const Failure &failure) {
        number = failure.Number();
    }
    QCOMPARE(number, 11);
    QCOMPARE(widget.Value(), 3);
}

void CtlProgressWidgetTest::ARefusedPropertyEndsInTheFatalBoxOfTheForm()
{
    QList<int> failures;
    form.SetFatalHandler([&](const Failure &failure) { failures.append(failure.Number()); });
    CtlProgress bar(form, u"bar"_s);
    CtlProgressWidget widget;
    widget.SetControl(&bar);
    widget.setProperty("Max", 0);
    widget.setProperty("Value", 5);
    widget.setProperty("Appearance", 40000);
    widget.setProperty("BorderStyle", 40000);
    widget.setProperty("CaptionStyle", -40000);
    QCOMPARE(failures, QList<int>({11, 6, 6, 6}));
    QCOMPARE(widget.Value(), 5);
    form.SetFatalHandler({});
}

void CtlProgressWidgetTest::GroundIsTheContainersUntilItIsWritten()
{
    QWidget page;
    CtlProgress bar(form, u"bar"_s);
    auto *widget = new CtlProgressWidget(&page);
    widget->SetControl(&bar);
    QCOMPARE(bar.BackColor(), ToNumber(page.palette().color(QPalette::Window)));
    QPalette palette = page.palette();
    palette.setColor(QPalette::Window, QColor(0xF5, 0xF4, 0xF3));
    page.setPalette(palette);
    QCOMPARE(bar.BackColor(), 0xF3F4F5U);
    widget->resize(60, 20);
    QCOMPARE(widget->grab().toImage().pixelColor(30, 10), QColor(0xF5, 0xF4, 0xF3));
    bar.SetBackColor(0x102030);
    palette.setColor(QPalette::Window, Qt::red);
    page.setPalette(palette);
    QCOMPARE(bar.BackColor(), 0x102030U);
}

void CtlProgressWidgetTest::AccessTellsValueAndBounds()
{
    CtlProgressWidget widget;
    widget.SetMax(50);
    widget.SetValue(10);
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&widget);
    QVERIFY(access);
    QCOMPARE(access->role(), QAccessible::ProgressBar);
    QCOMPARE(access->text(QAccessible::Name), u"Progress"_s);
    QCOMPARE(access->text(QAccessible::Value), u"20%"_s);
    QCOMPARE(access->valueInterface()->currentValue().toInt(), 10);
    QCOMPARE(access->valueInterface()->maximumValue().toInt(), 50);
    for (const auto &[written, told] : {std::pair(150, 50), std::pair(-3, 0), std::pair(20, 20)}) {
        widget.SetValue(written);
        QCOMPARE(widget.Value(), written);
        QCOMPARE(access->valueInterface()->currentValue().toInt(), told);
    }
}

void CtlProgressWidgetTest::AccessTellsNothingOfAnIdleBar()
{
    CtlProgressWidget widget;
    widget.SetMin(10);
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&widget);
    QCOMPARE(access->text(QAccessible::Value), QString());
    QCOMPARE(access->valueInterface()->currentValue().toInt(), 10);
}

void CtlProgressWidgetTest::FrameIsDrawn()
{
    CtlProgressWidget widget;
    widget.resize(100, 20);
    const QImage framed = widget.grab().toImage();
    widget.SetBorderStyle(0);
    const QImage plain = widget.grab().toImage();
    QVERIFY(framed.pixel(0, 0) != plain.pixel(0, 0));
}

void CtlProgressWidgetTest::FrameIsSharpAtEachScale()
{
    CtlProgressWidget widget;
    widget.resize(101, 21);
    widget.SetAppearance(0);
    widget.SetBackColor(0xFFFFFF);
    widget.SetForeColor(0xFFFFFF);
    widget.SetValue(0);
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        QPixmap screen(QSize(qRound(101 * scale), qRound(21 * scale)));
        screen.setDevicePixelRatio(scale);
        screen.fill(Qt::red);
        widget.render(&screen);
        const QImage drawn = screen.toImage();
        const int thick = qRound(scale);
        const QColor frame = drawn.pixelColor(0, 0);
        QVERIFY(frame.lightness() < 220);
        for (int x = 0; x < drawn.width(); ++x) {
            const bool isFrame = x < thick || x >= drawn.width() - thick;
            QCOMPARE(drawn.pixelColor(x, drawn.height() / 2), isFrame ? frame : QColor(Qt::white));
        }
        for (int y = 0; y < drawn.height(); ++y) {
            const bool isFrame = y < thick || y >= drawn.height() - thick;
            QCOMPARE(drawn.pixelColor(drawn.width() / 2, y), isFrame ? frame : QColor(Qt::white));
        }
    }
}

TRESSEL_GUI_TEST(CtlProgressWidgetTest)
#include "CtlProgressWidgetTest.moc"
