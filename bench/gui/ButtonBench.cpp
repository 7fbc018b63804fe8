// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/IsButton.h"
#include "widgets/ButtonPainter.h"

#include <QApplication>
#include <QStyle>

#include <benchmark/benchmark.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int twips = 15;

ButtonSurroundings Surroundings(double scale)
{
    ButtonSurroundings around;
    around.palette = QApplication::palette();
    around.font = QApplication::font();
    around.style = QApplication::style();
    around.scale = scale;
    return around;
}

void Prepare(IsButton &button, int style)
{
    button.SetStyle(static_cast<ButtonStyle>(style));
    button.PlaceIcon(Picture(QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\">"
                                        "<circle cx=\"4\" cy=\"4\" r=\"3\" fill=\"#c04010\"/></svg>")));
    button.TakeSize(104 * twips, 66 * twips);
}

/// One repaint of a button with caption and icon: look, percent.
void Repaint(benchmark::State &state)
{
    Form form(u"bench"_s);
    IsButton button(form, u"btn"_s, u"&Make Folder"_s);
    Prepare(button, static_cast<int>(state.range(0)));
    const ButtonSurroundings around = Surroundings(static_cast<double>(state.range(1)) / 100);
    button.UserMovesMouse();
    for (auto _ : state)
        benchmark::DoNotOptimize(DrawButton(button, around));
}

/// 10,000 changes of state, each followed by its repaint: look.
void TenThousandStates(benchmark::State &state)
{
    Form form(u"bench"_s);
    IsButton button(form, u"btn"_s, u"&Make Folder"_s);
    Prepare(button, static_cast<int>(state.range(0)));
    const ButtonSurroundings around = Surroundings(1);
    for (auto _ : state) {
        for (int change = 0; change < 10000; change += 4) {
            button.UserMovesMouse();
            benchmark::DoNotOptimize(DrawButton(button, around));
            button.UserPressesMouse(MouseButton::Left);
            benchmark::DoNotOptimize(DrawButton(button, around));
            button.UserReleasesMouse(MouseButton::Left);
            benchmark::DoNotOptimize(DrawButton(button, around));
            button.UserLeaves();
            benchmark::DoNotOptimize(DrawButton(button, around));
        }
    }
}

/// 10,000 changes of state of the control alone.
void TenThousandStatesWithoutFace(benchmark::State &state)
{
    Form form(u"bench"_s);
    IsButton button(form, u"btn"_s, u"&Make Folder"_s);
    for (auto _ : state) {
        for (int change = 0; change < 10000; change += 4) {
            button.UserMovesMouse();
            button.UserPressesMouse(MouseButton::Left);
            button.UserReleasesMouse(MouseButton::Left);
            button.UserLeaves();
        }
        form.TakeChanged();
    }
}

} // namespace

BENCHMARK(Repaint)
    ->ArgsProduct({benchmark::CreateDenseRange(0, 10, 1), {100, 200}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(TenThousandStates)->DenseRange(0, 10)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(TenThousandStatesWithoutFace)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
