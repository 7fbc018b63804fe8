// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/AboutForm.h"

#include "base/Steps.h"
#include "base/Version.h"
#include "forms/Appearance.h"
#include "forms/FormContext.h"
#include "forms/MainForm.h"
#include "forms/NoticeText.h"
#include "forms/OptionForm.h"
#include "machine/Paths.h"
#include "machine/Shell.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"

#include <QUrl>

namespace tressel {

using namespace Qt::StringLiterals;

AboutForm::AboutForm(const FormContext &context, const OptionForm &allOptions)
    : Form(u"frmAbout"_s)
    , picLogo(*this, u"picLogo"_s)
    , picLogo2(*this, u"picLogo2"_s)
    , lblTitle(*this, u"lblTitle"_s)
    , lblVersion(*this, u"lblVersion"_s)
    , lblCopyright(*this, u"lblCopyright"_s)
    , lblComments(*this, u"lblComments"_s)
    , lblHomePage(*this, u"lblHomePage"_s)
    , lblEMail(*this, u"lblEMail"_s)
    , lblAbout(*this, u"lblAbout"_s, u"Agreement"_s)
    , Text1(*this, u"Text1"_s, NoticeLines().join(u'\n'))
    , chkLoadTipsAtStartup(*this, u"chkLoadTipsAtStartup"_s, u"Load Tips At Startup"_s)
    , btnGBOK(*this, u"btnGBOK"_s, u"&OK"_s)
    , files(context.machine.files)
    , shell(context.machine.shell)
    , settings(context.settings)
    , options(allOptions)
    , version(context.version)
{
    picLogo2.SetVisible(false);
    Text1.SetLocked(true);
    Load.Handle([this] { LoadForm(); });
    Activate.Handle([this] { ApplyStyle(); });
    Unloading.Handle(
        [this](bool &) { settings.Write(keys::ShowTips, QString::number(chkLoadTipsAtStartup.Value())); });
    TieControls(context.clickSound);
}

void AboutForm::TieControls(const ClickSound &clickSound)
{
    picLogo.MouseDown.Handle([this, &clickSound] {
        clickSound.Play();
        ShowLogo(true);
    });
    picLogo.MouseUp.Handle([this] { ShowLogo(false); });
    // The mouse is over this one when it is let go.
    picLogo2.MouseUp.Handle([this] { ShowLogo(false); });
    lblHomePage.Click.Handle([this] { shell.Open(lblHomePage.Caption(), {}); });
    lblEMail.Click.Handle([this] { WriteMail(); });
    btnGBOK.Click.Handle([this, &clickSound] {
        clickSound.Play();
        Unload();
    });
}

void AboutForm::LoadForm()
{
    Steps steps;
    steps.Do([this] { chkLoadTipsAtStartup.SetValue(settings.ReadInt32(keys::ShowTips)); });
    SetCaption(u"About "_s + ApplicationTitle);
    lblTitle.SetCaption(version.productName);
    lblVersion.SetCaption(u"version %1.%2.%3"_s.arg(MajorVersion).arg(MinorVersion).arg(Revision));
    lblCopyright.SetCaption(QString(version.copyright).replace(u"\\n"_s, u"\n"_s));
    lblComments.SetCaption(QString(version.comments).replace(u"(c)"_s, u"©"_s));
    lblHomePage.SetCaption(version.homePage);
    lblEMail.SetCaption(version.mail);
    lblTitle.SetFontFamily(u"Arial"_s);
}

void AboutForm::ApplyStyle()
{
    int entry = options.optButtonStyle.Selected();
    if (entry < 0)
        entry = settings.ReadInt32(keys::ButtonStyle);
    if (entry >= 0 && entry < options.optButtonStyle.Count())
        btnGBOK.SetStyle(StyleOfEntry(entry));
}

void AboutForm::ShowLogo(bool isPressed)
{
    picLogo.SetVisible(!isPressed);
    picLogo2.SetVisible(isPressed);
}

void AboutForm::WriteMail()
{
    const QString subject = QString::fromLatin1(QUrl::toPercentEncoding(lblTitle.Caption()));
    shell.Open(u"mailto:"_s + version.mail + u"?subject="_s + subject, OnDriveC(files, u"C:\\"_s));
}

} // namespace tressel
