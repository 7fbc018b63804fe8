// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/AboutForm.h"

#include "settings/Settings.h"

namespace tressel {

using namespace Qt::StringLiterals;

AboutForm::AboutForm(Settings &settings)
    : Form(u"frmAbout"_s)
    , chkLoadTipsAtStartup(*this, u"chkLoadTipsAtStartup"_s, u"&Show Tips at Startup"_s)
{
    chkLoadTipsAtStartup.Click.Handle(
        [this, &settings] { settings.Write(keys::ShowTips, QString::number(chkLoadTipsAtStartup.Value())); });
}

} // namespace tressel
