// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/ProgressBar.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"

#include <QProgressBar>

using namespace tressel;
using namespace Qt::StringLiterals;

class ProgressFaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeyondTwoGigabytesTheShareIsShown()
    {
        Form form(u"f"_s);
        ProgressBar progress(form, u"ProgressBar1"_s);
        Bound bound(form);
        auto &widget = bound.Add<QProgressBar>(u"ProgressBar1"_s);
        QVERIFY(bound.Bind());
        constexpr double whole = 10.0 * 1024 * 1024 * 1024;
        for (const int percent : {0, 10, 25, 50, 99, 100}) {
            progress.SetRange(0, whole);
            progress.SetValue(whole * percent / 100);
            bound.updates.Flush();
            const qint64 extent = qint64(widget.maximum()) - widget.minimum();
            QCOMPARE((qint64(widget.value()) - widget.minimum()) * 100 / extent, qint64(percent));
        }
        progress.SetRange(-whole, whole);
        progress.SetValue(0);
        bound.updates.Flush();
        QCOMPARE(widget.text(), u"50%"_s);
    }

    void AnIdleBarReadsNothing()
    {
        Form form(u"f"_s);
        ProgressBar progress(form, u"ProgrBar"_s);
        Bound bound(form);
        auto &widget = bound.Add<QProgressBar>(u"ProgrBar"_s);
        QVERIFY(bound.Bind());
        QVERIFY(!widget.isTextVisible());
        progress.SetValue(40);
        bound.updates.Flush();
        QVERIFY(widget.isTextVisible());
        QCOMPARE(widget.text(), u"40%"_s);
        progress.SetValue(0);
        bound.updates.Flush();
        QVERIFY(!widget.isTextVisible());
    }
};

TRESSEL_GUI_TEST(ProgressFaceTest)
#include "ProgressFaceTest.moc"
