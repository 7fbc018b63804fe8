// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Face.h"
#include "faces/FaceLooks.h"

#include <functional>
#include <vector>

namespace tressel {

/// Which face goes with which kinds of control and widget. It knows the stock kinds; hand-drawn widgets
/// are added by those who draw them.
class FaceMakers {
public:
    /// Makes the face for the control and the widget, or gives null if they aren't its kinds.
    using Maker = std::function<Face *(Control &, QWidget &)>;

    explicit FaceMakers(const FaceLooks &looks = {});

    /// Is asked before those that were there.
    void Add(Maker maker) { makers.push_back(std::move(maker)); }
    /// Adds a face class with the constructor (ControlKind &, WidgetKind &, extra ...).
    template <typename ControlKind, typename WidgetKind, typename FaceKind, typename... Extra>
    void Add(const Extra &...extra)
    {
        Add([extra...](Control &control, QWidget &widget) -> Face * {
            auto *controlOfKind = dynamic_cast<ControlKind *>(&control);
            auto *widgetOfKind = dynamic_cast<WidgetKind *>(&widget);
            return controlOfKind && widgetOfKind ? new FaceKind(*controlOfKind, *widgetOfKind, extra...)
                                                 : nullptr;
        });
    }

    /// The face, which belongs to the widget; null if no maker knows the two kinds together.
    Face *Make(Control &control, QWidget &widget) const;

private:
    std::vector<Maker> makers;
};

} // namespace tressel
