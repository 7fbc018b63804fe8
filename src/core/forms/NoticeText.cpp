// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/NoticeText.h"

namespace tressel {

using namespace Qt::StringLiterals;

QStringList NoticeLines()
{
    return {
        u"Tressel: terms of use"_s,
        u""_s,
        u"Tressel makes folders from lists of names, and helps with the chores"_s,
        u"around them: listing, renaming, splitting, erasing and tidying up."_s,
        u""_s,
        u"1. You may use it, at home and at work, on as many machines as you like."_s,
        u"2. You may copy it and give it away, as it is or changed, as long as"_s,
        u"   this notice and the licence go with it."_s,
        u"3. You may read how it is made, and learn from it."_s,
        u""_s,
        u"What it does with your files"_s,
        u""_s,
        u"It makes the folders that you list, where you say. It leaves what is"_s,
        u"there already as it is. It removes only what you name, and only when"_s,
        u"you press the button that says so. Erasing is for good: what was"_s,
        u"erased can't be brought back, by Tressel or by anybody else."_s,
        u""_s,
        u"No warranty"_s,
        u""_s,
        u"It is given in the hope that it is useful, and without any promise."_s,
        u"Whoever uses it does so at his or her own risk. Keep copies of what"_s,
        u"is dear to you, above all before a large run."_s,
        u""_s,
        u"Privacy"_s,
        u""_s,
        u"It sends nothing about you or your files to anybody. It uses the"_s,
        u"network only to ask whether there is a newer version."_s,
        u""_s,
        u"Contact"_s,
        u""_s,
        u"Questions, faults and wishes are welcome where you got it from."_s,
    };
}

} // namespace tressel
