// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "gui/widgets/ButtonSample.h"
#include "gui/widgets/ToldPills.h"

#include <QTest>

#include <algorithm>
#include <cstdlib>

using namespace tressel;
using namespace tressel::test;
using namespace Qt::StringLiterals;

/// The look of the pill, whose colours are its own.
class PillLookTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PillLinesAreToldToThePixel_data();
    void PillLinesAreToldToThePixel();
    void PillColoursDoNotDependOnAnything();
    void PillCornersRunOnFromTheLines();
    void NarrowPillDrawsWithoutFailure();
    void FinePillHasNeitherStripesNorSeams();
};

void PillLookTest::PillLinesAreToldToThePixel_data()
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

void PillLookTest::PillLinesAreToldToThePixel()
{
    QFETCH(int, state);
    QFETCH(bool, focused);
    QFETCH(QByteArray, pill);
    const ToldPill &told = *std::find_if(toldPills.begin(), toldPills.end(),
                                         [&](const ToldPill &each) { return pill == each.name; });
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

void PillLookTest::PillColoursDoNotDependOnAnything()
{
    Sample plain(10);
    Sample changed(10);
    changed.UseColours();
    changed.around.palette = QPalette(Qt::black);
    QCOMPARE(changed.Draw(), plain.Draw());
}

void PillLookTest::PillCornersRunOnFromTheLines()
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

void PillLookTest::NarrowPillDrawsWithoutFailure()
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

void PillLookTest::FinePillHasNeitherStripesNorSeams()
{
    // Within the border no colour leaps: a line of the design that is 20 steps from its neighbour would
    // stand beside it as a stripe. Told lines are up to 28 steps apart. At 150 % a pixel of the screen takes
    // up to three quarters of the way from one to the next; at 125 % all of it, so that nothing can be asked.
    const QList<std::pair<qreal, int>> leaps{{1.5, 21}, {2.0, 14}, {3.0, 14}};
    for (const auto &[scale, leap] : leaps) {
        for (const LookState state : {LookState::Normal, LookState::Hover, LookState::Pressed}) {
            Sample sample(10, scale);
            sample.Show(state);
            const QImage drawn = sample.Draw();
            const int border = qRound(5 * scale);
            const auto stepsTo = [&](int x, int y, int nextX, int nextY) {
                const QColor a = drawn.pixelColor(x, y);
                const QColor b = drawn.pixelColor(nextX, nextY);
                return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                 std::abs(a.blue() - b.blue())});
            };
            for (int y = border; y < drawn.height() - border - 1; ++y) {
                for (int x = border; x < drawn.width() - border - 1; ++x) {
                    const int steps = std::max(stepsTo(x, y, x + 1, y), stepsTo(x, y, x, y + 1));
                    QVERIFY2(steps <= leap,
                             qPrintable(u"%1: %2,%3: %4"_s.arg(scale).arg(x).arg(y).arg(steps)));
                }
            }
        }
    }
}

TRESSEL_GUI_TEST(PillLookTest)
#include "PillLookTest.moc"
