// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/OwnKinds.h"

#include "controls/CtlProgress.h"
#include "controls/IsButton.h"
#include "controls/SideBar.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"
#include "widgets/CtlProgressWidget.h"
#include "widgets/IsButtonWidget.h"
#include "widgets/SideBarWidget.h"

#include <QTest>

using namespace tressel;
using namespace Qt::StringLiterals;

class OwnKindsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AButtonIsShownAndClicked()
    {
        Form form(u"f"_s);
        IsButton button(form, u"btnGBMake"_s, u"Make"_s);
        button.SetToolTip(u" Make folders "_s);
        int clicks = 0;
        button.Click.Handle([&] { ++clicks; });
        Bound bound(form);
        AddOwnKinds(bound.makers);
        auto &widget = bound.Add<IsButtonWidget>(u"btnGBMake"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(widget.property("text").toString(), u"Make"_s);
        QCOMPARE(widget.property("ToolTip").toString(), u" Make folders "_s);
        // The button shows its own tool tip; the toolkit has none to show besides.
        QCOMPARE(widget.toolTip(), QString());
        QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center());
        QCOMPARE(clicks, 1);

        button.SetCaption(u"Cancel"_s);
        button.SetEnabled(false);
        bound.updates.Flush();
        QCOMPARE(widget.property("text").toString(), u"Cancel"_s);
        QVERIFY(!widget.isEnabled());
        QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center());
        QCOMPARE(clicks, 1);
        button.SetVisible(false);
        bound.updates.Flush();
        QVERIFY(!widget.isVisible());
    }

    void AProgressBarShowsItsControl()
    {
        Form form(u"f"_s);
        CtlProgress progress(form, u"ctlProgress1"_s);
        progress.SetToolTip(u"so far"_s);
        Bound bound(form);
        AddOwnKinds(bound.makers);
        auto &widget = bound.Add<CtlProgressWidget>(u"ctlProgress1"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(widget.toolTip(), u"so far"_s);
        progress.SetValue(50);
        bound.updates.Flush();
        QCOMPARE(widget.property("Value").toInt(), 50);
        QCOMPARE(widget.Text(), u"50%"_s);
    }

    void ASideBarShowsItsControl()
    {
        Form form(u"f"_s);
        SideBar bar(form, u"EyeDropper1"_s);
        Bound bound(form);
        AddOwnKinds(bound.makers);
        auto &widget = bound.Add<SideBarWidget>(u"EyeDropper1"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(widget.Control(), &bar);
        bar.Items().Add(u"Item: 1"_s, u"Folders"_s);
        bound.updates.Flush();
        QCOMPARE(widget.property("Count").toInt(), 1);
    }
};

TRESSEL_GUI_TEST(OwnKindsTest)
#include "OwnKindsTest.moc"
