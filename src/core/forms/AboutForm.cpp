// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/AboutForm.h"

#include "forms/FormContext.h"
#include "settings/Settings.h"

namespace tressel {

using namespace Qt::StringLiterals;

AboutForm::AboutForm(const FormContext &context)
    : Form(u"frmAbout"_s)
    , chkLoadTipsAtStartup(*this, u"chkLoadTipsAtStartup"_s, u"Load Tips At Startup"_s)
{
    Load.Handle([this, &settings = context.settings] {
        chkLoadTipsAtStartup.SetValue(settings.ReadInt32(keys::ShowTips));
    });
    Unloading.Handle([this, &settings = context.settings](bool &) {
        settings.Write(keys::ShowTips, QString::number(chkLoadTipsAtStartup.Value()));
    });
}

} // namespace tressel
