// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/TextListView.h"

namespace tressel {

using namespace Qt::StringLiterals;

PageParts MakeTextListView()
{
    auto *column = Column();
    column->addWidget(WrappedLabel(u"lblInfo"_s));
    return {column, ButtonRow({u"btnGBLoadFile"_s, u"btnGBSaveFile"_s})};
}

} // namespace tressel
