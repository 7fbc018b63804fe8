// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/LabelFace.h"

#include "base/Twips.h"
#include "faces/Captions.h"
#include "faces/Keys.h"

#include <QGuiApplication>
#include <QMouseEvent>

namespace tressel {

LabelFace::LabelFace(Label &control, QLabel &widget, const FaceLooks &faceLooks)
    : Face(control, widget)
    , label(control)
    , view(widget)
    , looks(faceLooks)
    , shownColour(NumberOf(SystemColour::ButtonText))
{
    view.setTextFormat(Qt::PlainText);
}

void LabelFace::Show()
{
    if (const QString text = WithLineBreaks(label.Caption()); view.text() != text)
        view.setText(text);
    if (label.IsBold() && !view.font().bold()) {
        QFont font = view.font();
        font.setBold(true);
        view.setFont(font);
    }
    if (!label.FontFamily().isEmpty() && view.font().family() != label.FontFamily()) {
        QFont font = view.font();
        font.setFamily(label.FontFamily());
        view.setFont(font);
    }
    label.TakeWidth(ToTwips(view.sizeHint().width()));
    ShowForeColor();
}

void LabelFace::ShowForeColor()
{
    // A colour that was never written is the toolkit's own.
    if (shownColour == label.ForeColor() || !looks.colour)
        return;
    shownColour = label.ForeColor();
    QPalette palette = view.palette();
    palette.setColor(QPalette::WindowText, looks.colour(shownColour, QGuiApplication::palette()));
    view.setPalette(palette);
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
