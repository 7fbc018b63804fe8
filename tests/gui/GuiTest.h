// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

namespace tressel {

/// Notes a class of tests under its name, so that the one test program can run it; made by TRESSEL_GUI_TEST
/// before main.
class GuiTest {
public:
    using Maker = std::unique_ptr<QObject> (*)();

    GuiTest(const char *name, Maker maker);
};

} // namespace tressel

/// Stands at the end of a source with a class of Qt tests, where a program of its own would have its main.
#define TRESSEL_GUI_TEST(Class)                                                                              \
    static const tressel::GuiTest register##Class(#Class, [] { return std::unique_ptr<QObject>(new Class); });
