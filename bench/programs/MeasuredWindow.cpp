// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "MeasuredWindow.h"

#include <QElapsedTimer>

#include <cstdio>
#include <ctime>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

double ProcessorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

} // namespace

MeasuredWindow::MeasuredWindow(char **arguments)
    : toolkit(argumentCount, arguments)
    , program(argumentCount, arguments, {})
    , desktop(program, hive)
{
    Put(keys::ShowTips, u"0"_s);
    Put(keys::Sound, u"1"_s);
    // No box of what a database lacks is to wait for an answer.
    Put(keys::DatabaseFile, {});
}

void MeasuredWindow::Put(const KeyEntry &key, const QString &text)
{
    desktop.application.settings.Write(key, text);
}

void MeasuredWindow::Start()
{
    desktop.Start();
    ShowAll();
}

void MeasuredWindow::ShowAll()
{
    desktop.machine.updates.Flush();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void MeasuredWindow::Measure(const std::function<void()> &act)
{
    QElapsedTimer clock;
    clock.start();
    const double before = ProcessorSeconds();
    act();
    ShowAll();
    std::printf("%.4f %.4f\n", static_cast<double>(clock.nsecsElapsed()) / 1e9, ProcessorSeconds() - before);
    std::fflush(stdout);
}
