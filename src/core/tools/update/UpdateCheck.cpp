// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/update/UpdateCheck.h"

#include "base/Version.h"
#include "machine/Network.h"
#include "machine/Shell.h"
#include "tools/ToolContext.h"
#include "tools/WorkArea.h"
#include "tools/update/UpdateText.h"

namespace tressel {

using namespace Qt::StringLiterals;

UpdateCheck::UpdateCheck(const ToolContext &context, const VersionBlock &thisVersion)
    : PicUpdate(context.form, u"PicUpdate"_s)
    , lblUpdate(context.form, u"lblUpdate"_s, u"New version"_s)
    , network(context.machine.network)
    , shell(context.machine.shell)
    , area(context.area)
    , version(thisVersion)
{
    SetFirstValues();
    TieNotice();
}

void UpdateCheck::SetFirstValues()
{
    const QString notice = u"Clcik here for new update"_s;
    PicUpdate.SetVisible(false);
    PicUpdate.SetToolTip(notice);
    PicUpdate.SetBackColor(0x0000FF); // red
    PicUpdate.SetHandPointer(true);
    lblUpdate.SetToolTip(notice);
    lblUpdate.SetForeColor(0x00FFFF); // yellow
    lblUpdate.SetBold(true);
}

void UpdateCheck::TieNotice()
{
    lblUpdate.Click.Handle([this] { lblUpdate_Click(); });
    lblUpdate.Resize.Handle([this] { FitNotice(); });
    PicUpdate.Click.Handle([this] { lblUpdate_Click(); });
    area.lblStatusLine.Change.Also([this] { PlaceNotice(); });
    area.lblStatusLine.Resize.Also([this] { PlaceNotice(); });
}

QString UpdateCheck::Address(const QString &path) const
{
    return u"http://"_s + version.updateHost + path;
}

void UpdateCheck::CheckForUpdate()
{
    if (version.updateHost.isEmpty() || !network.IsOnline())
        return;
    network.Cancel();
    // The window can be activated again while it waits; what that one fetches is the news then.
    if (const auto text = network.FetchText(Address(u"/download/Tressel5.0.txt"_s)))
        Tell(*text);
}

void UpdateCheck::Tell(const QString &text)
{
    const bool isNewer = TellsNewerVersion(text, Revision);
    if (isNewer) {
        lblUpdate.SetCaption(NewVersionNotice(text));
        FitNotice();
    }
    PicUpdate.SetVisible(isNewer);
}

void UpdateCheck::FitNotice()
{
    constexpr int roundTheText = 50;
    PicUpdate.SetWidth(lblUpdate.Width() + roundTheText);
}

void UpdateCheck::PlaceNotice()
{
    constexpr int distance = 300;
    PicUpdate.SetLeft(area.lblStatusLine.Width() + distance);
}

void UpdateCheck::lblUpdate_Click()
{
    // A press on the text may reach the box behind it too.
    if (!PicUpdate.IsVisible())
        return;
    PicUpdate.SetVisible(false);
    OpenDownloadPage();
}

void UpdateCheck::OpenDownloadPage()
{
    if (version.updateHost.isEmpty())
        area.lblStatusLine.SetCaption(u"No update address is set"_s);
    else
        shell.Open(Address(u"/downloadupdate/Tressel5.htm"_s), {});
}

} // namespace tressel
