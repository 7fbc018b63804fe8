// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/erase/ErasePage.h"

namespace tressel {

using namespace Qt::StringLiterals;

ErasePage::ErasePage(const ToolContext &context)
    : lstErase(context.form, u"lstErase"_s)
    , lblEraseMessage(context.form, u"lblEraseMessage"_s, u"Drag and drop files into list"_s)
    , btnGBErase(context.form, u"btnGBErase"_s, u"Erase"_s)
    , PicProgress(context.form, u"PicProgress"_s)
    , ProgrBar(context.form, u"ProgrBar"_s)
    , lblOverwrite(context.form, u"lblOverwrite"_s, u"Ready"_s)
    , Timer1(context.form, u"Timer1"_s, 100)
{
    lstErase.SetToolTip(u" Double Click on Item in list for remove a item from list "_s);
    lblEraseMessage.SetToolTip(lstErase.ToolTip());
    btnGBErase.SetEnabled(false);
}

} // namespace tressel
