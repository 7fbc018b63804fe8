// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"

#include <QFrame>
#include <QLabel>
#include <QTest>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

FaceLooks PlainLooks()
{
    FaceLooks looks;
    looks.colour = [](ColourNumber number, const QPalette &palette) {
        return IsSystemColour(number) ? palette.color(QPalette::Button) : QColor(QRgb(number));
    };
    return looks;
}

void SendMouse(QWidget &widget, QEvent::Type type, QPoint place, Qt::MouseButton button,
               Qt::MouseButtons held)
{
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class LooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ColoursAreTheToolkitsUntilWritten()
    {
        Form form(u"f"_s);
        Frame frame(form, u"FrameXPMenu(0)"_s);
        Label label(form, u"lblUpdate"_s, u"New version"_s);
        Bound bound(form);
        bound.makers = FaceMakers(PlainLooks());
        auto &holder = bound.Add<QFrame>(u"FrameXPMenu(0)"_s);
        auto &text = bound.Add<QLabel>(u"lblUpdate"_s);
        QVERIFY(bound.Bind());
        QVERIFY(!holder.autoFillBackground());
        QVERIFY(!text.testAttribute(Qt::WA_SetPalette));

        frame.SetBackColor(0xF5F5F5);
        label.SetForeColor(0x00FF00);
        bound.updates.Flush();
        QCOMPARE(holder.grab().toImage().pixelColor(20, 20), QColor(0xF5, 0xF5, 0xF5));
        QCOMPARE(text.palette().color(QPalette::WindowText), QColor(0, 0xFF, 0));

        frame.SetBackColor(NumberOf(SystemColour::ButtonFace));
        bound.updates.Flush();
        QCOMPARE(holder.palette().color(QPalette::Window),
                 QGuiApplication::palette().color(QPalette::Button));
    }

    void ALabelTellsTheWidthOfItsText()
    {
        Form form(u"f"_s);
        Label label(form, u"lblStatusLine"_s, u"Ready"_s);
        int resizes = 0;
        label.Resize.Handle([&] { ++resizes; });
        Bound bound(form);
        auto &text = bound.Add<QLabel>(u"lblStatusLine"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(label.Width(), text.sizeHint().width() * 15);
        QCOMPARE(resizes, 1);
        label.SetCaption(u"Finished, folders created successfully"_s);
        bound.updates.Flush();
        QCOMPARE(label.Width(), text.sizeHint().width() * 15);
        QCOMPARE(resizes, 2);
    }

    void APictureBoxTellsOfTheMouse()
    {
        Form form(u"f"_s);
        PictureBox strip(form, u"PicStrip"_s);
        strip.SetLeft(5100);
        QList<QPair<int, int>> moves;
        int ups = 0;
        int clicks = 0;
        strip.MouseMove.Handle([&](int buttons, int x) {
            moves.append({buttons, x});
            strip.SetLeft(strip.Left() + x);
        });
        strip.MouseUp.Handle([&] { ++ups; });
        strip.Click.Handle([&] { ++clicks; });
        Bound bound(form);
        auto &widget = bound.Add<QFrame>(u"PicStrip"_s);
        QVERIFY(bound.Bind());

        SendMouse(widget, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton);
        SendMouse(widget, QEvent::MouseMove, {15, 5}, Qt::NoButton, Qt::LeftButton);
        // The widget hasn't followed yet; the mouse went on by two pixels.
        SendMouse(widget, QEvent::MouseMove, {17, 5}, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(moves, (QList<QPair<int, int>>({{1, 225}, {1, 30}})));
        QCOMPARE(strip.Left(), 5100 + 17 * 15);
        SendMouse(widget, QEvent::MouseButtonRelease, {-50, 5}, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(ups, 1);
        QCOMPARE(clicks, 0);
        QTest::mouseClick(&widget, Qt::LeftButton);
        QCOMPARE(clicks, 1);
        QTest::keyClick(&widget, Qt::Key_Space);
        QCOMPARE(clicks, 2);
    }
};

TRESSEL_GUI_TEST(LooksTest)
#include "LooksTest.moc"
