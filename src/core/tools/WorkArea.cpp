// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/WorkArea.h"

namespace tressel {

using namespace Qt::StringLiterals;

WorkArea::WorkArea(Form &form)
    : lblTitle(form, u"lblTitle"_s, u" Start in:"_s)
    , txtStrtPath(form, u"txtStrtPath"_s, u"c:\\"_s)
    , chkExtension(form, u"chkExtension"_s, u"Remove Ext"_s)
    , chkButtonBar(form, u"chkButtonBar"_s, u"Hide Toolbar"_s)
    , TVList(form, u"TVList"_s)
    , LstItem(form, u"LstItem"_s)
    , lblStatusLine(form, u"lblStatusLine"_s, u"Ready"_s)
{
    txtStrtPath.SetToolTip(
        u" Drag and drop folder destination here a new folders will be created if not exist "_s);
    chkButtonBar.SetToolTip(u" If Checked Hide Toolbar Tip: If you have Screen Res 800 x 600 "_s);
    chkExtension.SetToolTip(u" If Checked Remove Extension ex: *.txt or *.exe "_s);
    TVList.SetToolTip(u" Clikk a item to Open Created Folder "_s);
    // Kept: the tool tip promises a double click that nothing answers.
    LstItem.SetToolTip(u" Double clikk to remove item "_s);
}

} // namespace tressel
