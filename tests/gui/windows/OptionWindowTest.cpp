// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "widgets/IsButtonWidget.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QWindow>

#include <functional>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int looks = 9;
constexpr int pages = 5;

/// The program with its options dialog on show.
class OptionStage : public DesktopStage {
public:
    OptionStage()
    {
        Start();
        Form().btnGBToolbarOption.UserClicks();
        Settle();
    }

    OptionForm &Options() { return desktop->application.frmOption(); }
    QWidget &Dialog() const { return desktop->FaceOf(u"frmOption"_s)->Window(); }
    template <typename Widget> Widget &Part(const QString &name) const
    {
        auto *widget = Dialog().findChild<Widget *>(name);
        if (!widget)
            qFatal("There is no %s of that kind.", qPrintable(name));
        return *widget;
    }
    void Open(int page)
    {
        Options().lstOptions.UserSelects(page);
        Settle();
    }
    void Click(const QString &name)
    {
        QTest::mouseClick(&Part<QWidget>(name), Qt::LeftButton);
        Settle();
    }
};

/// The stops of the tab key from the dialog's list on, each once.
QList<QWidget *> TabStops(QWidget &window, QWidget &first)
{
    QList<QWidget *> stops;
    first.setFocus();
    do {
        stops += window.focusWidget();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != &first && stops.size() < 100);
    return stops;
}

QString SpokenName(QWidget *widget)
{
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(widget);
    return spoken ? spoken->text(QAccessible::Name).trimmed() : QString();
}

/// Pixels of the pictures' own line colour in the bar of icons at the side bar's foot.
int DarkLinesAtTheFoot(QWidget &bar)
{
    constexpr int height = 24;
    const QImage image = bar.grab().toImage();
    int count = 0;
    for (int y = image.height() - height; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == QColor(0x2F, 0x48, 0x58) ? 1 : 0;
    }
    return count;
}

int PaintsOf(QWidget &widget, const std::function<void()> &act)
{
    struct Counter : QObject {
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    } counter;
    widget.installEventFilter(&counter);
    act();
    return counter.count;
}

} // namespace

class OptionWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryControlHasAFaceAndTheOtherWayRound()
    {
        DesktopStage stage;
        stage.Start();
        const WindowFace *face = stage.desktop->FaceOf(u"frmOption"_s);
        QVERIFY(face);
        QCOMPARE(face->Faces().ControlsWithoutFace(), QStringList());
        QCOMPARE(face->Faces().WidgetsWithoutControl(), QStringList());
    }

    void EnterStoresAndEscapeDoesNot()
    {
        DesktopStage stage;
        stage.Start();
        OptionForm &options = stage.desktop->application.frmOption();
        QWidget &window = stage.desktop->FaceOf(u"frmOption"_s)->Window();
        options.Show();
        stage.Settle();
        options.OptDigit.Select(3);
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!options.IsVisible());
        QCOMPARE(stage.desktop->application.settings.ReadInt32(keys::DigitType), 1);
        options.Show();
        stage.Settle();
        QTest::keyClick(&window, Qt::Key_Return);
        QVERIFY(!options.IsVisible());
        QCOMPARE(stage.desktop->application.settings.ReadInt32(keys::DigitType), 3);
    }

    void TheMainWindowOwnsTheDialogWhichStandsOverItsMiddle()
    {
        const OptionStage stage;
        QCOMPARE(stage.Dialog().windowHandle()->transientParent(), stage.Window().windowHandle());
        QCOMPARE(stage.Dialog().windowHandle()->type(), Qt::Dialog);
        const QPoint away = stage.Dialog().geometry().center() - stage.Window().geometry().center();
        QVERIFY2(away.manhattanLength() <= 4, qPrintable(u"%1, %2"_s.arg(away.x()).arg(away.y())));
    }

    void TheDialogHasOneSizeForAllItsPages()
    {
        OptionStage stage;
        const QSize size = stage.Dialog().size();
        const auto *area = stage.Dialog().findChild<QScrollArea *>();
        QCOMPARE(area->viewport()->size(), area->widget()->size());
        for (int page = 0; page < pages; ++page) {
            stage.Open(page);
            QCOMPARE(stage.Dialog().size(), size);
        }
        stage.Open(2);
        for (int look = 0; look < looks; ++look) {
            stage.Click(u"optButtonStyle(%1)"_s.arg(look));
            QCOMPARE(stage.Dialog().size(), size);
        }
    }

    void EachLookIsChosenInTheDialogAndSeenInBothWindows()
    {
        OptionStage stage;
        stage.Open(2);
        QList<QImage> inDialog;
        QList<QImage> inMain;
        for (int look = 0; look < looks; ++look) {
            stage.Click(u"optButtonStyle(%1)"_s.arg(look));
            QCOMPARE(stage.Options().optButtonStyle.Selected(), look);
            QVERIFY(stage.Part<QRadioButton>(u"optButtonStyle(%1)"_s.arg(look)).isChecked());
            const QImage apply = stage.Part<QWidget>(u"btnGBApply"_s).grab().toImage();
            const QImage exit = stage.Face<QWidget>(u"btnGBToolbarExit"_s).grab().toImage();
            // Flat and classic differ under the mouse alone.
            if (look != 1) {
                QVERIFY2(!inDialog.contains(apply), qPrintable(QString::number(look)));
                QVERIFY2(!inMain.contains(exit), qPrintable(QString::number(look)));
            }
            inDialog += apply;
            inMain += exit;
            for (const QString &name : {u"btnGBOK"_s, u"btnGBDefault"_s})
                QCOMPARE(stage.Part<IsButtonWidget>(name).Control().Style(),
                         stage.Form().btnGBToolbarExit.Style());
        }
    }

    void ALookReachesEveryButtonInOnePaint()
    {
        OptionStage stage;
        stage.Open(2);
        auto &entry = stage.Part<QWidget>(u"optButtonStyle(6)"_s);
        for (QWidget *button :
             {&stage.Part<QWidget>(u"btnGBApply"_s), &stage.Face<QWidget>(u"btnGBToolbarExit"_s)}) {
            stage.Options().optButtonStyle.Select(0);
            stage.Settle();
            const int paints = PaintsOf(*button, [&] {
                QTest::mouseClick(&entry, Qt::LeftButton);
                stage.Settle();
            });
            QCOMPARE(paints, 1);
        }
    }

    void TheTabKeyReachesEveryControlOfEachPageByName()
    {
        OptionStage stage;
        QVERIFY(QTest::qWaitForWindowActive(&stage.Dialog()));
        stage.Options().ChkAutoOption.SetChecked(true);
        stage.Options().ChkAnimOption.SetChecked(true);
        // About comes first, before the colours stay in front of it.
        for (int page = 0; page < pages; ++page) {
            stage.Open(page);
            if (page == 1)
                stage.Click(u"btnGBChangeInfo"_s);
            stage.Options().EnableDigits(true);
            stage.Options().EnableAnimation(true);
            stage.Settle();
            const QList<QWidget *> stops = TabStops(stage.Dialog(), stage.Part<QWidget>(u"lstOptions"_s));
            for (QWidget *stop : stops)
                QVERIFY2(!SpokenName(stop).isEmpty(), qPrintable(stop->objectName()));
            for (const Control *control : stage.Options().Controls()) {
                auto *widget = stage.Dialog().findChild<QWidget *>(control->Name());
                // Of round buttons of a group only the selected one is a stop.
                if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus)
                    QVERIFY2(stops.contains(widget), qPrintable(control->Name()));
            }
            if (page == 1) {
                const qsizetype first = stops.indexOf(&stage.Part<QWidget>(u"txtInformation(0)"_s));
                QCOMPARE(stops.at(first + 1)->objectName(), u"txtInformation(1)"_s);
                QCOMPARE(stops.at(first + 2)->objectName(), u"btnGBChangeInfo"_s);
            }
        }
    }

    void InformationIsEditedOverItsLabels()
    {
        OptionStage stage;
        stage.Open(1);
        auto &owner = stage.Part<QLineEdit>(u"txtInformation(0)"_s);
        QVERIFY(!owner.isVisible());
        stage.Click(u"btnGBChangeInfo"_s);
        QVERIFY(owner.hasFocus());
        QCOMPARE(owner.selectedText(), stage.Part<QLabel>(u"lblInformation(3)"_s).text());
        for (int box = 0; box < 2; ++box) {
            const auto &field = stage.Part<QWidget>(u"txtInformation(%1)"_s.arg(box));
            const auto &label = stage.Part<QWidget>(u"lblInformation(%1)"_s.arg(3 + box));
            const QRect place(label.mapTo(&stage.Dialog(), QPoint()), label.size());
            QVERIFY(place.contains(QRect(field.mapTo(&stage.Dialog(), QPoint()), field.size())));
            QCOMPARE(field.width(), label.width());
        }
        stage.Dialog().resize(stage.Dialog().size() + QSize(90, 40));
        stage.Settle();
        QCOMPARE(owner.width(), stage.Part<QWidget>(u"lblInformation(3)"_s).width());
        QTest::keyClicks(&owner, u"Bea"_s);
        stage.Settle();
        stage.Click(u"btnGBUpdateInfo"_s);
        QVERIFY(!owner.isVisible());
        QCOMPARE(stage.Part<QLabel>(u"lblInformation(3)"_s).text(), u"Bea"_s);
    }

    void BoxesOfTheInformationLieOnNoOtherPage()
    {
        OptionStage stage;
        stage.Open(1);
        stage.Click(u"btnGBChangeInfo"_s);
        stage.Open(3);
        stage.Open(0);
        // Kept: the colours stay in front of About, and what can be clicked on them still can.
        QVERIFY(stage.Part<QWidget>(u"PicBakground"_s).isVisible());
        QVERIFY(!stage.Part<QWidget>(u"txtInformation(0)"_s).isVisible());
        for (const QString &name : {u"btnGBColorDefault"_s, u"btnGBTextSidebarFont"_s, u"PicColor(3)"_s}) {
            auto &part = stage.Part<QWidget>(name);
            QCOMPARE(stage.Dialog().childAt(part.mapTo(&stage.Dialog(), part.rect().center())), &part);
        }
    }

    void SwatchIsWorkedByKeyboardAndShowsTheFocus()
    {
        OptionStage stage;
        QVERIFY(QTest::qWaitForWindowActive(&stage.Dialog()));
        stage.Open(3);
        auto &swatch = stage.Part<QAbstractButton>(u"PicColor(4)"_s);
        const QImage without = swatch.grab().toImage();
        swatch.setFocus(Qt::TabFocusReason);
        QVERIFY(swatch.grab().toImage() != without);
        QString title;
        WhenUp<QColorDialog>([&](QColorDialog &dialog) {
            title = dialog.windowTitle();
            dialog.setCurrentColor(QColor(0x12, 0x34, 0x56));
            dialog.accept();
        });
        QTest::keyClick(&swatch, Qt::Key_Space);
        stage.Settle();
        QCOMPARE(title, u"Choose a Color"_s);
        QCOMPARE(SpokenName(&swatch), u"Color form 1, open entry, #123456"_s);
        QCOMPARE(swatch.grab().toImage().pixelColor(8, 8), QColor(0x12, 0x34, 0x56));
        QCOMPARE(stage.desktop->application.settings.ReadText(keys::Color.At(4)), QString::number(0x563412));
    }

    void BoxesAndPicturesAreSeenOnADarkDesktop()
    {
        const QPalette before = QApplication::palette();
        QPalette dark(QColor(60, 60, 64), QColor(45, 45, 48));
        dark.setColor(QPalette::Base, QColor(30, 30, 32));
        QApplication::setPalette(dark);
        {
            OptionStage stage;
            stage.Open(2);
            for (const QString &name : {u"ChkAutoOption"_s, u"optButtonStyle(0)"_s}) {
                const QImage box = stage.Part<QWidget>(name).grab().toImage();
                QVERIFY2(qGray(box.pixel(7, box.height() / 2)) > 90, qPrintable(name));
            }
            // A look in the desktop's own colours: the picture's lines are as light as its caption.
            stage.Click(u"optButtonStyle(0)"_s);
            const QImage exit = stage.Face<QWidget>(u"btnGBToolbarExit"_s).grab().toImage();
            int light = 0;
            for (int y = 0; y < exit.height() / 2; ++y) {
                for (int x = 8; x < exit.width() - 8; ++x)
                    light += qGray(exit.pixel(x, y)) > 200 ? 1 : 0;
            }
            QVERIFY2(light > 40, qPrintable(QString::number(light)));
            // The side bar in the desktop's colours has its icons on a dark ground, too.
            QVERIFY(DarkLinesAtTheFoot(stage.Face<QWidget>(u"EyeDropper1"_s)) > 0);
            stage.Open(3);
            stage.Click(u"btnGBColorSystem"_s);
            QCOMPARE(DarkLinesAtTheFoot(stage.Face<QWidget>(u"EyeDropper1"_s)), 0);
        }
        QApplication::setPalette(before);
    }

    void SwatchTellsItsPurposeAndColour()
    {
        DesktopStage stage;
        stage.Start();
        QWidget &window = stage.desktop->FaceOf(u"frmOption"_s)->Window();
        auto *swatch = window.findChild<QAbstractButton *>(u"PicColor(11)"_s);
        QVERIFY(swatch);
        QCOMPARE(swatch->accessibleName(), u"Color form 2, header, #DEDEDE"_s);
        QCOMPARE(swatch->grab().toImage().pixelColor(10, 10), QColor(0xDE, 0xDE, 0xDE));
    }
};

TRESSEL_GUI_TEST(OptionWindowTest)
#include "OptionWindowTest.moc"
