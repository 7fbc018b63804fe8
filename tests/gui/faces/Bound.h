// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceUpdates.h"
#include "faces/WindowFace.h"

#include <QTest>

#include <memory>

namespace tressel {

/// A window on show whose widgets are tied to a form: make the widgets as children of `window` first,
/// then call Bind.
struct Bound {
    explicit Bound(Form &form)
        : form(form)
    {
        window.resize(600, 400);
    }

    /// A child of the window with this name.
    template <typename Widget> Widget &Add(const QString &name)
    {
        auto *widget = new Widget(&window);
        widget->setObjectName(name);
        widget->setGeometry(0, next, 300, 60);
        next += 60;
        return *widget;
    }

    /// Ties the widgets and shows the window. False if it didn't come up.
    [[nodiscard]] bool Bind()
    {
        face = std::make_unique<WindowFace>(form, window, makers, updates);
        form.Show();
        updates.Flush();
        const bool isUp = QTest::qWaitForWindowActive(&window);
        QCoreApplication::processEvents();
        return isUp;
    }

    Form &form;
    FaceMakers makers;
    FaceUpdates updates;
    QWidget window;
    std::unique_ptr<WindowFace> face;
    int next = 0;
};

} // namespace tressel
