// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/OptionFace.h"

#include "faces/Captions.h"

#include <algorithm>

namespace tressel {

OptionFace::OptionFace(OptionButton &control, QRadioButton &widget)
    : Face(control, widget)
    , option(control)
    , view(widget)
    , group(WidgetGroup())
{
    group.addButton(&view);
    connect(&view, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            Hand([this] { option.UserSelects(); });
    });
}

void OptionFace::Show()
{
    if (const QString text = WithLineBreaks(option.Caption()); view.text() != text)
        view.setText(text);
    ShowEntry();
    if (view.isChecked() == option.IsSelected())
        return;
    // An exclusive group takes no selection away without another in its place.
    group.setExclusive(false);
    view.setChecked(option.IsSelected());
    group.setExclusive(true);
}

void OptionFace::ShowEntry()
{
    // The tab key enters a group at its selected button, at the first one if none is.
    const QString entry = option.Group().Button(std::max(option.Group().Selected(), 0)).Name();
    for (QAbstractButton *button : group.buttons())
        button->setFocusPolicy(button->objectName() == entry ? Qt::StrongFocus : Qt::ClickFocus);
}

QButtonGroup &OptionFace::WidgetGroup() const
{
    QWidget *window = view.window();
    for (int index = 0; index < option.Group().Count(); ++index) {
        const auto *sibling = window->findChild<QRadioButton *>(option.Group().Button(index).Name());
        if (sibling && sibling->group())
            return *sibling->group();
    }
    return *new QButtonGroup(window);
}

} // namespace tressel
