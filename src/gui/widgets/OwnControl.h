// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Form.h"

#include <QWidget>

namespace tressel {

/// The control that a hand-drawn widget shows while it is given none: it stands alone on a form of its own,
/// and the widget takes over what changed in it when the event loop comes round.
template <typename Kind> class OwnControl {
public:
    template <typename Face>
    OwnControl(const QString &name, Face &face)
        : control(form, name)
    {
        form.SetChangeListener([this, widget = &face] {
            QMetaObject::invokeMethod(
                &context,
                [this, widget] {
                    form.TakeChanged();
                    widget->TakeOver();
                },
                Qt::QueuedConnection);
        });
    }

    Kind &Control() { return control; }

private:
    Form form{QStringLiteral("own")};
    Kind control;
    QObject context; ///< takes what is still to come with it when it goes
};

} // namespace tressel
