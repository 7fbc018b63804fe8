// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/SideBarItems.h"

#include "base/Failure.h"
#include "controls/Frame.h"
#include "controls/SideBar.h"

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr auto keyIsTaken = FailureNumber{457};

}

SideBarItem::SideBarItem(SideBar &owner, QString itemKey, QString itemCaption, int number)
    : bar(owner)
    , key(std::move(itemKey))
    , caption(std::move(itemCaption))
    , index(number)
{
}

void SideBarItem::SetImage(int number)
{
    image = number;
    bar.NoteLook();
}

void SideBarItem::SetVisible(bool isVisible)
{
    if (visible == isVisible)
        return;
    visible = isVisible;
    bar.OnShownChanged();
}

bool SideBarItem::IsSelected() const
{
    return bar.SelectedItem() == this;
}

void SideBarItem::SetSelected(bool isSelected)
{
    if (isSelected && visible)
        bar.Open(*this);
}

void SideBarItem::SetPage(Frame &hosted)
{
    if (page)
        page->SetVisible(false);
    page = &hosted;
    page->SetVisible(IsSelected());
    bar.NoteLook();
}

SideBarItem &SideBarItems::operator[](int number) const
{
    if (number < 1 || number > Count())
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return *items[static_cast<std::size_t>(number - 1)];
}

SideBarItem &SideBarItems::Add(const QString &key, const QString &caption)
{
    const auto hasKey = [&](const auto &item) { return item->Key() == key; };
    if (!key.isEmpty() && std::ranges::any_of(items, hasKey))
        throw Failure(keyIsTaken, u"This key is already associated with an element of this collection"_s);
    items.push_back(std::unique_ptr<SideBarItem>(new SideBarItem(bar, key, caption, Count() + 1)));
    bar.OnShownChanged();
    return *items.back();
}

void SideBarItems::Clear()
{
    for (const auto &item : items) {
        if (item->Page())
            item->Page()->SetVisible(false);
    }
    items.clear();
    bar.OnCleared();
}

} // namespace tressel
