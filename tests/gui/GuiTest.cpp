// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"

#include <QApplication>
#include <QTest>

#include <cstdio>
#include <map>
#include <string>

namespace tressel {

namespace {

std::map<std::string, GuiTest::Maker> &Makers()
{
    static std::map<std::string, GuiTest::Maker> makers;
    return makers;
}

int TellTheClasses()
{
    std::fputs("tressel-gui-tests CLASS [OPTION...]\n", stderr);
    for (const auto &[name, maker] : Makers())
        std::fprintf(stderr, "  %s\n", name.c_str());
    return 2;
}

} // namespace

GuiTest::GuiTest(const char *name, Maker maker)
{
    Makers().emplace(name, maker);
}

} // namespace tressel

/// Runs one class in a process of its own, as if it were the whole program: what follows its name goes to Qt
/// Test.
int main(int count, char **arguments)
{
    const auto found = count > 1 ? tressel::Makers().find(arguments[1]) : tressel::Makers().end();
    if (found == tressel::Makers().end())
        return tressel::TellTheClasses();
    arguments[1] = arguments[0];
    --count;
    ++arguments;

    const QApplication application(count, arguments);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    return QTest::qExec(found->second().get(), count, arguments);
}
