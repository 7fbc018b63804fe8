// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "gui/widgets/SideBarHands.h"

using namespace tressel;
using namespace Qt::StringLiterals;

/// Where everything stands, in which colours and fonts.
class SideBarPlacesTest : public QObject, private SideBarHands {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(Up()); }
    void cleanup() { QCOMPARE(Down(), QStringList()); }

    void HiddenEntriesHaveNoPlace();
    void AllHiddenShowsNeitherCaptionNorPage();
    void MirroringTurnsMarkAndIcons();
    void AllEntriesHaveAPlaceOfTheirOwnAtAnySize_data();
    void AllEntriesHaveAPlaceOfTheirOwnAtAnySize();
    void TheLeastWindowLeavesThePageMostOfTheRoom();
    void RedrawOffKeepsThePicture();
    void ToldColoursAreAtTheirPlaces();
    void UnreadableTextColoursGiveWay();
    void PagesStayLightOnADarkDesktop();
    void DisabledLooksDifferentAndTakesNoClicks();
    void UnknownFontsFallBack();
    void ThePageRoomIsToldOnceWhenItDiffers();
    void ASizeSetByTheFormsAnswerIsTakenOver();
    void AHigherPageTakesItsRoomFromTheRows();
    void SystemColoursFollowTheDesktop();
};

void SideBarPlacesTest::HiddenEntriesHaveNoPlace()
{
    const QRect second = Widget().EntryRect(2);
    Bar().Items()[1].SetVisible(false);
    Bar().Items()[4].SetVisible(false);
    Widget().Refresh();
    QVERIFY(Widget().EntryRect(1).isEmpty());
    QVERIFY(Widget().EntryRect(4).isEmpty());
    QVERIFY(Widget().EntryRect(8).isEmpty());
    QVERIFY(Widget().EntryRect(2).top() > second.top());
    QCOMPARE(Widget().Rows(), 5);
    QCOMPARE(ShownPages(), QList<int>{2});
}

void SideBarPlacesTest::AllHiddenShowsNeitherCaptionNorPage()
{
    for (int number = 1; number <= 7; ++number)
        Bar().Items()[number].SetVisible(false);
    Widget().Refresh();
    Picture();
    QCOMPARE(Widget().Caption(), QString());
    QVERIFY(ShownPages().isEmpty());
    QCOMPARE(Widget().SelectedIndex(), 0);
    QVERIFY(Widget().Places().Strip().isEmpty());
}

void SideBarPlacesTest::MirroringTurnsMarkAndIcons()
{
    Bar().SetColors(SideBarStage::FirstPalette());
    Bar().SetVisibleItems(3);
    Widget().Refresh();
    const QColor mark = Widget().Look().Colour(SideBarColour::OpenMark);
    const QRect row = Widget().EntryRect(1);
    const QPoint left(row.left() + 1, row.center().y());
    const QPoint right(row.right() - 1, row.center().y());
    QCOMPARE(Picture().pixelColor(left), mark);
    QVERIFY(Picture().pixelColor(right) != mark);
    QVERIFY(Widget().EntryRect(4).center().x() < Widget().width() / 2);
    Bar().SetRightToLeft(true);
    Widget().Refresh();
    QCOMPARE(Picture().pixelColor(right), mark);
    QVERIFY(Picture().pixelColor(left) != mark);
    QVERIFY(Widget().EntryRect(4).center().x() > Widget().width() / 2);
    QVERIFY(Widget().EntryRect(5).right() < Widget().EntryRect(4).left());
}

void SideBarPlacesTest::AllEntriesHaveAPlaceOfTheirOwnAtAnySize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("wanted");
    for (const QSize &size : {QSize(340, 296), QSize(340, 365), QSize(140, 150), QSize(900, 900)}) {
        for (const int wanted : {0, 1, 3, 11})
            QTest::addRow("%dx%d, %d rows", size.width(), size.height(), wanted) << size << wanted;
    }
}

void SideBarPlacesTest::AllEntriesHaveAPlaceOfTheirOwnAtAnySize()
{
    QFETCH(QSize, size);
    QFETCH(int, wanted);
    Bar().SetVisibleItems(wanted);
    Widget().setMinimumSize(0, 0);
    Widget().resize(size);
    Widget().Refresh();
    QVERIFY(Widget().Rows() <= wanted);
    QRegion taken;
    for (int number = 1; number <= 7; ++number) {
        const QRect place = Widget().EntryRect(number);
        QVERIFY(place.width() >= 10 && place.height() >= 20);
        QVERIFY(Widget().rect().contains(place));
        QVERIFY(!taken.intersects(place));
        taken += place;
        Click(place.center());
        QCOMPARE(Widget().SelectedIndex(), number);
    }
}

void SideBarPlacesTest::TheLeastWindowLeavesThePageMostOfTheRoom()
{
    Widget().resize(340, 296);
    QVERIFY2(Widget().PageRect().height() > 296 / 2,
             qPrintable(QString::number(Widget().PageRect().height())));
    stage->pages.at(6)->setMinimumHeight(230);
    Widget().Refresh();
    QCOMPARE(Widget().Rows(), 0);
}

void SideBarPlacesTest::RedrawOffKeepsThePicture()
{
    const QImage before = Picture();
    Bar().SetRedraw(false);
    Bar().Items().Clear();
    Bar().Items().Add(u"new"_s, u"New one"_s);
    Bar().SetColors({});
    Widget().Refresh();
    QCOMPARE(Picture(), before);
    QCOMPARE(Widget().Count(), 7);
    QCOMPARE(ShownPages(), QList<int>{1});
    Bar().SetRedraw(true);
    Widget().Refresh();
    QCOMPARE(Widget().Count(), 1);
    QCOMPARE(Widget().Caption(), u"New one"_s);
    QVERIFY(ShownPages().isEmpty());
}

void SideBarPlacesTest::ToldColoursAreAtTheirPlaces()
{
    Bar().SetColors(SideBarStage::FirstPalette());
    Bar().SetVisibleItems(3);
    Widget().Refresh();
    MoveMouse(Middle(2));
    QTest::mousePress(&Widget(), Qt::LeftButton, {}, Middle(3));
    MoveMouse(Middle(3));
    QImage picture = Picture();
    const SideBarLayout &places = Widget().Places();
    const auto nearEnd = [](const QRect &rect) { return QPoint(rect.right() - 4, rect.center().y()); };
    QCOMPARE(picture.pixelColor(0, 0), QColor(0x7B7B7B));
    QCOMPARE(picture.pixelColor(nearEnd(places.Header())), QColor(0xDEDEDE));
    QCOMPARE(picture.pixelColor(places.Header().topLeft()), QColor(0xFFFFFF));
    QCOMPARE(picture.pixelColor(places.Header().bottomLeft()), QColor(0x8C8C8C));
    QCOMPARE(picture.pixelColor(nearEnd(places.Grip())), QColor(0xDFDFDF));
    QCOMPARE(picture.pixelColor(nearEnd(Widget().EntryRect(1))), QColor(0xFAE2B6));
    QCOMPARE(picture.pixelColor(nearEnd(Widget().EntryRect(2))), QColor(0xFFFFFF));
    QCOMPARE(picture.pixelColor(nearEnd(Widget().EntryRect(3))), QColor(0xF3B94D));
    QTest::mouseRelease(&Widget(), Qt::LeftButton, {}, Middle(1));
    MoveMouse(Middle(2));
    QCOMPARE(Picture().pixelColor(nearEnd(Widget().EntryRect(2))), QColor(0xFAE2B6));
    Bar().SetOutlookColors(false);
    Widget().Refresh();
    QCOMPARE(Picture().pixelColor(places.Bar().center()), Widget().palette().color(QPalette::Window));
}

void SideBarPlacesTest::UnreadableTextColoursGiveWay()
{
    Bar().SetTitleColor(0x0000FF);
    Widget().Refresh();
    QCOMPARE(Widget().Look().TitleOn(Qt::white), QColor(Qt::red));
    Bar().SetTitleColor(0xFFFFFF);
    Widget().Refresh();
    QCOMPARE(Widget().Look().TitleOn(Qt::white), QColor(Qt::black));
    Bar().SetCaptionColor(0);
    Widget().Refresh();
    QCOMPARE(Widget().Look().CaptionOn(QColor(0x202020)), QColor(Qt::white));
}

void SideBarPlacesTest::PagesStayLightOnADarkDesktop()
{
    Widget().setPalette(SideBarStage::DarkDesktop());
    const QPalette palette = stage->pages.first()->palette();
    QCOMPARE(palette.color(QPalette::Window), QColor(0xF5F5F5));
    QVERIFY(palette.color(QPalette::WindowText).lightness() < 64);
    QVERIFY(stage->fields.first()->palette().color(QPalette::Text).lightness() < 64);
    QVERIFY(stage->fields.first()->palette().color(QPalette::Base).lightness() > 200);
    QVERIFY(palette.color(QPalette::PlaceholderText).lightness() < 160);
    const QPoint corner = Widget().PageRect().topLeft() + QPoint(2, 2);
    QCOMPARE(Picture().pixelColor(corner), QColor(0xF5F5F5));
    QVERIFY(Picture().pixelColor(Widget().EntryRect(3).bottomRight() - QPoint(4, 4)).lightness() < 80);
}

void SideBarPlacesTest::DisabledLooksDifferentAndTakesNoClicks()
{
    const QImage enabled = Picture();
    Bar().SetEnabled(false);
    Widget().Refresh();
    QVERIFY(Picture() != enabled);
    Click(Middle(3));
    QVERIFY(stage->opened.isEmpty());
    QVERIFY(Tabs()->child(0)->state().disabled);
}

void SideBarPlacesTest::UnknownFontsFallBack()
{
    Bar().SetTitleFont({{u"0"_s, 10}});
    Bar().SetCaptionFont({{u"DejaVu Sans"_s, 20, true}});
    Widget().Refresh();
    QCOMPARE(Widget().Look().TitleFont().family(), Widget().font().family());
    QCOMPARE(Widget().Look().TitleFont().pointSizeF(), 10.0);
    QCOMPARE(Widget().Look().CaptionFont().pointSizeF(), 20.0);
    QVERIFY(Widget().Look().CaptionFont().bold());
    QVERIFY(Widget().Places().Header().height() >= QFontMetrics(Widget().Look().CaptionFont()).height());
}

void SideBarPlacesTest::ThePageRoomIsToldOnceWhenItDiffers()
{
    int resizes = 0;
    Bar().PageResize.Handle([&] { ++resizes; });
    Widget().resize(400, 600);
    QCOMPARE(resizes, 1);
}

void SideBarPlacesTest::ASizeSetByTheFormsAnswerIsTakenOver()
{
    Bar().StripResize.Handle([this] { Widget().resize(500, 640); });
    Bar().SetVisibleItems(2);
    Bar().TakeRoom(1, 1);
    Widget().Refresh();
    QTRY_COMPARE(Widget().PageRect().width(), 498);
}

void SideBarPlacesTest::AHigherPageTakesItsRoomFromTheRows()
{
    stage->fields.first()->setMinimumHeight(400);
    QTRY_VERIFY(Widget().Rows() < 7);
    QVERIFY(Widget().PageRect().height() >= stage->pages.first()->minimumSizeHint().height());
}

void SideBarPlacesTest::SystemColoursFollowTheDesktop()
{
    Bar().SetPageBackColor(NumberOf(SystemColour::ButtonFace));
    SideBarColours palette = SideBarStage::FirstPalette();
    palette[static_cast<std::size_t>(SideBarColour::Header)] = NumberOf(SystemColour::Highlight);
    Bar().SetColors(palette);
    Widget().Refresh();
    const QPalette &desktop = Widget().palette();
    QCOMPARE(Widget().Look().Colour(SideBarColour::Header), desktop.color(QPalette::Highlight));
    QCOMPARE(stage->pages.first()->palette().color(QPalette::Window), desktop.color(QPalette::Button));
}

TRESSEL_GUI_TEST(SideBarPlacesTest)
#include "SideBarPlacesTest.moc"
