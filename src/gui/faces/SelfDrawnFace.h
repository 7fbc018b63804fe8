// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Face.h"

namespace tressel {

/// The face of a control whose widget is drawn for it alone and does the work itself: it takes the control
/// by SetControl, and showing it and handing on the user's acts are the widget's own affair. `takeOver` is
/// the widget's function that shows the present state.
template <typename ControlKind, typename WidgetKind, void (WidgetKind::*takeOver)()>
class SelfDrawnFace : public Face {
public:
    SelfDrawnFace(ControlKind &control, WidgetKind &widget)
        : Face(control, widget)
        , view(widget)
    {
        view.SetControl(&control);
    }

protected:
    void Show() override { (view.*takeOver)(); }

private:
    WidgetKind &view;
};

} // namespace tressel
