// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/OptionGroup.h"

#include <utility>

namespace tressel {

OptionButton::OptionButton(Form &form, const QString &name, QString text, OptionGroup &owner, int position)
    : Captioned(form, name)
    , caption(std::move(text))
    , group(owner)
    , index(position)
{
}

void OptionButton::SetCaption(const QString &text)
{
    caption = text;
    NoteChanged();
}

bool OptionButton::IsSelected() const
{
    return group.IsSelected(index);
}

void OptionButton::UserSelects()
{
    UserAct([this] { group.Select(index); });
}

OptionGroup::OptionGroup(Form &form, const QString &name, const QStringList &captions)
{
    for (int index = 0; index < captions.size(); ++index) {
        const QString entry = QStringLiteral("%1(%2)").arg(name).arg(index);
        buttons.push_back(std::make_unique<OptionButton>(form, entry, captions[index], *this, index));
    }
}

OptionGroup::OptionGroup(Form &form, const QStringList &names, const QStringList &captions)
{
    for (int index = 0; index < names.size(); ++index)
        buttons.push_back(
            std::make_unique<OptionButton>(form, names[index], captions.value(index), *this, index));
}

void OptionGroup::Select(int index)
{
    OptionButton &entry = Button(index);
    if (selected == index)
        return;
    const int before = std::exchange(selected, index);
    if (before >= 0)
        Button(before).NoteSelection();
    entry.NoteSelection();
    Click.Raise(index);
}

void OptionGroup::SelectNone()
{
    const int before = std::exchange(selected, -1);
    if (before >= 0)
        Button(before).NoteSelection();
}

void OptionGroup::SetEnabled(bool enabled)
{
    for (const auto &button : buttons)
        button->SetEnabled(enabled);
}

OptionButton &OptionGroup::Button(int index) const
{
    if (index < 0 || index >= Count())
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return *buttons[static_cast<size_t>(index)];
}

} // namespace tressel
