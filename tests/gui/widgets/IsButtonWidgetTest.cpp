// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/IsButtonWidget.h"

#include "gui/GuiTest.h"
#include "gui/widgets/ButtonStage.h"
#include "machine/PlainColours.h"
#include "widgets/FontFaces.h"
#include "widgets/SystemColours.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProxyStyle>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

int warnings = 0;

void CountWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !message.contains(u"XDG_RUNTIME_DIR"_s))
        ++warnings;
}

} // namespace

class IsButtonWidgetTest : public QObject, private ButtonStage {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void EveryPropertyIsTheControls();
    void ARefusedPropertyEndsInTheFatalBoxOfTheForm();
    void FirstColoursAreTheDesktopsTranslated();
    void ClickAndItsStates();
    void RightClickDoesNothing();
    void ReleasedOutsideIsNoClick();
    void FastSecondClickCountsToo();
    void EnterComesOnceUntilTheLeave();
    void LeavingWhilePressedClearsHover();
    void SpaceKeyClicks();
    void HeldSpaceKeyClicksOnce();
    void SpaceKeyReleasedElsewhereLeavesNothingPressed();
    void FontTakenBackIsTheContainers();
    void MnemonicPresses();
    void TabReachesIt();
    void PaletteAndStyleChangesRepaint();
    void WritingAPropertyRepaints();
    void ShapeIsAMask();
    void SizeIsTheControls();
    void AboutTellsNameAndVersion();
    void AControlThatComesBackIsShownAsBefore();
    void HandlerMayDeleteTheWidget();
    void LooksWarnAboutNothing();
    void FractionalPlacesStaySharp();
};

void IsButtonWidgetTest::init()
{
    QVERIFY(Up());
    warnings = 0;
}

void IsButtonWidgetTest::cleanup()
{
    Down();
}

void IsButtonWidgetTest::EveryPropertyIsTheControls()
{
    const QList<std::pair<const char *, QVariant>> rows{
        {"Style", 9},
        {"Caption", u"x"_s},
        {"text", u"y"_s},
        {"Icon", u"make"_s},
        {"IconAlign", 2},
        {"IconSize", 24},
        {"CaptionAlign", 3},
        {"NonThemeStyle", 7},
        {"Enabled", false},
        {"ShowFocus", true},
        {"UseCustomColors", true},
        {"BackColor", 1U},
        {"HighlightColor", 2U},
        {"FontColor", 3U},
        {"FontHighlightColor", 4U},
        {"ToolTip", u"tip"_s},
        {"ToolTipTitle", u"title"_s},
        {"ToolTipIcon", 1},
        {"ToolTipType", 1},
        {"ToolTipBackColor", 5U},
        {"ToolTipForeColor", 6U},
        {"ButtonType", 1},
        {"Value", true},
    };
    for (const auto &[name, value] : rows) {
        QVERIFY2(button->setProperty(name, value), name);
        QCOMPARE(button->property(name), value);
    }
    QCOMPARE(button->property("Version").toString(), u"3.0"_s);
    QCOMPARE(control->Caption(), u"y"_s);
    QCOMPARE(control->Style(), ButtonStyle::Keramik);
    QFont font(u"Serif"_s, 14);
    QVERIFY(button->setProperty("Font", font));
    QCOMPARE(control->Font()->points, 14.0);
    button->TakeOver();
    QCOMPARE(button->font().pointSizeF(), 14.0);
    QVERIFY(!button->isEnabled());
}

void IsButtonWidgetTest::ARefusedPropertyEndsInTheFatalBoxOfTheForm()
{
    QList<int> failures;
    form->SetFatalHandler([&](const Failure &failure) { failures.append(failure.Number()); });
    button->setProperty("IconSize", 40000);
    QCOMPARE(failures, QList<int>{6});
    QCOMPARE(button->IconSize(), 32);

    // Without a form there is nobody but the caller.
    IsButtonWidget alone;
    int number = 0;
    try {
        alone.SetIconSize(40000);
    } catch (const Failure &failure) {
        number = failure.Number();
    }
    QCOMPARE(number, 6);
}

void IsButtonWidgetTest::FirstColoursAreTheDesktopsTranslated()
{
    const QPalette desktop = button->palette();
    QCOMPARE(button->BackColor(), ToNumber(desktop.color(QPalette::Button)));
    QCOMPARE(button->HighlightColor(), ToNumber(desktop.color(QPalette::Highlight)));
    QCOMPARE(button->FontColor(), ToNumber(desktop.color(QPalette::ButtonText)));
    QCOMPARE(button->FontHighlightColor(), ToNumber(desktop.color(QPalette::ButtonText)));
    const IsButtonWidget alone;
    QCOMPARE(alone.BackColor(), ToNumber(desktop.color(QPalette::Button)));
}

void IsButtonWidgetTest::ClickAndItsStates()
{
    QTest::mousePress(button, Qt::LeftButton);
    QCOMPARE(control->ShownState(), LookState::Pressed);
    QCOMPARE(clicks, 0);
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(control->ShownState(), LookState::Hover);
    QCOMPARE(clicks, 1);
}

void IsButtonWidgetTest::RightClickDoesNothing()
{
    QTest::mousePress(button, Qt::RightButton);
    QCOMPARE(control->ShownState(), LookState::Normal);
    QTest::mouseRelease(button, Qt::RightButton);
    QCOMPARE(clicks, 0);
}

void IsButtonWidgetTest::ReleasedOutsideIsNoClick()
{
    QTest::mousePress(button, Qt::LeftButton, {}, {10, 10});
    QTest::mouseRelease(button, Qt::LeftButton, {}, {10, 100});
    QCOMPARE(clicks, 0);
    QCOMPARE(control->ShownState(), LookState::Normal);
}

void IsButtonWidgetTest::FastSecondClickCountsToo()
{
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseDClick(button, Qt::LeftButton);
    QCOMPARE(control->ShownState(), LookState::Pressed);
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(clicks, 2);
}

void IsButtonWidgetTest::EnterComesOnceUntilTheLeave()
{
    Hover({5, 5});
    Hover({6, 6});
    Hover({7, 7});
    QCOMPARE(enters, 1);
    QCOMPARE(control->ShownState(), LookState::Hover);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(button, &leave);
    QCOMPARE(leaves, 1);
    QCOMPARE(control->ShownState(), LookState::Normal);
    Hover({5, 5});
    QCOMPARE(enters, 2);
}

void IsButtonWidgetTest::LeavingWhilePressedClearsHover()
{
    Hover({5, 5});
    QTest::mousePress(button, Qt::LeftButton, {}, {5, 5});
    QMouseEvent outside(QEvent::MouseMove, QPointF(5, 90), button->mapToGlobal(QPointF(5, 90)), Qt::NoButton,
                        Qt::LeftButton, {});
    QApplication::sendEvent(button, &outside);
    QCOMPARE(leaves, 1);
    QVERIFY(!control->IsHovered());
    QCOMPARE(control->ShownState(), LookState::Normal);
}

void IsButtonWidgetTest::SpaceKeyClicks()
{
    button->setFocus();
    QTest::keyPress(button, Qt::Key_Space);
    QCOMPARE(clicks, 1);
    QCOMPARE(control->ShownState(), LookState::Pressed);
    QTest::keyRelease(button, Qt::Key_Space);
    QCOMPARE(control->ShownState(), LookState::Hover);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(clicks, 3);
}

void IsButtonWidgetTest::HeldSpaceKeyClicksOnce()
{
    QTest::keyPress(button, Qt::Key_Space);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, {}, u" "_s, true);
    QApplication::sendEvent(button, &repeated);
    QCOMPARE(clicks, 1);
}

void IsButtonWidgetTest::SpaceKeyReleasedElsewhereLeavesNothingPressed()
{
    // As where the click opens a box, which gets the release.
    auto *other = new IsButtonWidget(window.get());
    other->show();
    control->Click.Also([&] { other->setFocus(); });
    button->setFocus();
    QTest::keyPress(button, Qt::Key_Space);
    QCOMPARE(clicks, 1);
    QCOMPARE(control->ShownState(), LookState::Normal);
    QCOMPARE(control->LastButton(), MouseButton::None);
    QCOMPARE(leaves, 0);
}

void IsButtonWidgetTest::FontTakenBackIsTheContainers()
{
    const QFont before = button->font();
    control->SetFont(FontFace{u"Serif"_s, 21});
    button->TakeOver();
    QCOMPARE(button->font().pointSizeF(), 21.0);
    control->SetFont({});
    button->TakeOver();
    QCOMPARE(button->font(), before);
}

void IsButtonWidgetTest::MnemonicPresses()
{
    QTest::keyClick(window.get(), Qt::Key_A, Qt::AltModifier);
    QCOMPARE(clicks, 1);
    QVERIFY(button->hasFocus());
    QCOMPARE(control->ShownState(), LookState::Normal);
    control->SetCaption(u"&Join"_s);
    button->TakeOver();
    QTest::keyClick(window.get(), Qt::Key_A, Qt::AltModifier);
    QCOMPARE(clicks, 1);
    QTest::keyClick(window.get(), Qt::Key_J, Qt::AltModifier);
    QCOMPARE(clicks, 2);
}

void IsButtonWidgetTest::TabReachesIt()
{
    auto *other = new IsButtonWidget(window.get());
    other->setGeometry(50, 100, 100, 30);
    other->show();
    other->setFocus();
    QVERIFY(!control->HasFocus());
    QTest::keyClick(other, Qt::Key_Tab);
    QVERIFY(button->hasFocus());
    QVERIFY(control->HasFocus());
    const QImage focused = button->grab().toImage();
    QTest::keyClick(button, Qt::Key_Tab);
    QVERIFY(!control->HasFocus());
    QVERIFY(button->grab().toImage() != focused);
}

void IsButtonWidgetTest::PaletteAndStyleChangesRepaint()
{
    QTRY_VERIFY(button->paints > 0);
    const auto repaints = [this](const std::function<void()> &change) {
        QApplication::processEvents();
        button->paints = 0;
        change();
        return QTest::qWaitFor([this] { return button->paints > 0; });
    };
    QVERIFY(repaints([this] {
        QPalette changed = window->palette();
        changed.setColor(QPalette::Button, Qt::green);
        window->setPalette(changed);
    }));
    QProxyStyle style;
    QVERIFY(repaints([&] { button->setStyle(&style); }));
    QVERIFY(repaints([&] { button->setStyle(nullptr); }));
}

void IsButtonWidgetTest::WritingAPropertyRepaints()
{
    auto *own = new CountingButton(window.get());
    own->show();
    QTRY_VERIFY(own->paints > 0);
    QApplication::processEvents();
    own->paints = 0;
    own->setProperty("Caption", u"other"_s);
    QTRY_VERIFY(own->paints > 0);
}

void IsButtonWidgetTest::ShapeIsAMask()
{
    QCOMPARE(button->mask().boundingRect(), QRect(0, 0, 100, 30));
    QVERIFY(!button->mask().contains(QPoint(0, 0)));
    control->SetStyle(ButtonStyle::Pill);
    button->TakeOver();
    QVERIFY(!button->mask().contains(QPoint(2, 2)));
    QVERIFY(button->mask().contains(QPoint(10, 0)));
    button->resize(120, 40);
    QCOMPARE(button->mask().boundingRect(), QRect(0, 0, 120, 40));
    control->SetStyle(ButtonStyle::Flat);
    button->TakeOver();
    QVERIFY(button->mask().isEmpty());
}

void IsButtonWidgetTest::SizeIsTheControls()
{
    QCOMPARE(control->Width(), 1500);
    QCOMPARE(control->Height(), 450);
    button->resize(10, 10);
    QCOMPARE(button->size(), QSize(20, 20));
    QCOMPARE(control->Width(), 300);
    QVERIFY(!button->grab().isNull());
    QCOMPARE(warnings, 0);
}

void IsButtonWidgetTest::AboutTellsNameAndVersion()
{
    control->About();
    auto *box = window->findChild<QDialog *>(u"isButtonAbout"_s);
    QVERIFY(box);
    QVERIFY(box->isVisible());
    QStringList texts;
    for (const QLabel *label : box->findChildren<QLabel *>())
        texts.append(label->text());
    QVERIFY(texts.contains(u"isButton"_s));
    QVERIFY(texts.contains(u"Version 3.0"_s));
    auto *close = box->findChild<IsButtonWidget *>(u"btnClose"_s);
    QVERIFY(close);
    QCOMPARE(close->Caption(), u"Close"_s);
    QTest::mouseClick(close, Qt::LeftButton);
    QVERIFY(!box->isVisible());
}

void IsButtonWidgetTest::AControlThatComesBackIsShownAsBefore()
{
    button->SetControl(nullptr);
    button->SetControl(control.get());
    button->SetControl(control.get());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(clicks, 1);
    control->About();
    QCOMPARE(window->findChildren<QDialog *>(u"isButtonAbout"_s).size(), 1);
}

void IsButtonWidgetTest::HandlerMayDeleteTheWidget()
{
    control->Click.Also([this] {
        delete button;
        button = nullptr;
    });
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(button);
    access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(!button);
}

void IsButtonWidgetTest::LooksWarnAboutNothing()
{
    const QtMessageHandler before = qInstallMessageHandler(CountWarnings);
    for (int style = -1; style <= 11; ++style) {
        for (const bool isEnabled : {true, false}) {
            control->SetStyle(static_cast<ButtonStyle>(style));
            control->SetIcon(Picture(QByteArray("no picture")));
            control->SetEnabled(isEnabled);
            button->TakeOver();
            button->grab();
        }
    }
    qInstallMessageHandler(before);
    QCOMPARE(warnings, 0);
}

void IsButtonWidgetTest::FractionalPlacesStaySharp()
{
    // A window drawn at 150 %: odd places fall between two pixels of the screen.
    button->clearFocus();
    button->setGeometry(51, 51, 101, 31);
    QPixmap screen(450, 300);
    screen.setDevicePixelRatio(1.5);
    screen.fill(Qt::white);
    window->render(&screen);
    const QImage drawn = screen.toImage();
    const int middle = qRound(51 * 1.5 + 31 * 1.5 / 2);
    const int left = qRound(51 * 1.5);
    const int right = qRound((51 + 101) * 1.5) - 1;
    const QRgb frame = 0xFF003C74;
    QCOMPARE(drawn.pixel(left, middle), frame);
    QCOMPARE(drawn.pixel(right, middle), frame);
    for (int x = left; x < left + 3; ++x) {
        const QColor colour = drawn.pixelColor(x, middle);
        QVERIFY2(colour.rgb() == frame || colour.lightness() > 200,
                 qPrintable(u"%1: %2"_s.arg(x - left).arg(colour.name())));
    }
}

TRESSEL_GUI_TEST(IsButtonWidgetTest)
#include "IsButtonWidgetTest.moc"
