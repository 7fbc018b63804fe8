// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/LabelFace.h"

#include "faces/Keys.h"

#include <QMouseEvent>

namespace tressel {

LabelFace::LabelFace(Label &control, QLabel &widget)
    : Face(control, widget)
    , label(control)
    , view(widget)
{
    view.setTextFormat(Qt::PlainText);
}

void LabelFace::Show()
{
    if (view.text() != label.Caption())
        view.setText(label.Caption());
}

bool LabelFace::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *release = static_cast<QMouseEvent *>(event);
        if (release->button() == Qt::LeftButton && view.rect().contains(release->position().toPoint()))
            Hand([this] { label.UserClicks(); });
        return false;
    }
    if (IsEnter(*event) || IsKey(*event, Qt::Key_Space)) {
        Hand([this] { label.UserClicks(); });
        return true;
    }
    return Face::eventFilter(watched, event);
}

} // namespace tressel
