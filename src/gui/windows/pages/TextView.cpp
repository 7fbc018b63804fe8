// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/TextView.h"

#include "windows/pages/EraseView.h"
#include "windows/pages/ListingView.h"
#include "windows/pages/TextListView.h"

namespace tressel {

using namespace Qt::StringLiterals;

QWidget *MakeTextView()
{
    const PageParts textList = MakeTextListView();
    const PageParts listing = MakeListingView();
    const PageParts erase = MakeEraseView();

    auto *column = Column(gapWide);
    column->addLayout(textList.content);
    column->addWidget(Line());
    column->addLayout(listing.content);
    column->addWidget(Line());
    column->addLayout(erase.content, 1);

    auto *foot = Column(gapSmall);
    for (QLayout *part : {textList.foot, listing.foot, erase.foot})
        foot->addLayout(part);
    return Page(u"FrameXPMenu(6)"_s, {column, foot});
}

} // namespace tressel
