// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/erase/ErasePage.h"

#include "base/Pictures.h"
#include "base/Steps.h"
#include "tools/ListItemTip.h"
#include "tools/folders/RemoveDupes.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString &Hint()
{
    static const QString hint = u"Drag and drop files into list"_s;
    return hint;
}

} // namespace

ErasePage::ErasePage(const ToolContext &context)
    : lstErase(context.form, u"lstErase"_s)
    , lblEraseMessage(context.form, u"lblEraseMessage"_s, Hint())
    , btnGBErase(context.form, u"btnGBErase"_s, u"Erase"_s)
    , PicProgress(context.form, u"PicProgress"_s)
    , ProgrBar(context.form, u"ProgrBar"_s)
    , lblOverwrite(context.form, u"lblOverwrite"_s, u"Ready"_s)
    , Timer1(context.form, u"Timer1"_s, 100)
    , run(context, *this)
    , files(context.machine.files)
{
    lstErase.SetToolTip(u" Double Click on Item in list for remove a item from list "_s);
    lstErase.SetTakesDrops(true);
    lblEraseMessage.SetToolTip(lstErase.ToolTip());
    btnGBErase.SetEnabled(false);

    lstErase.Click.Handle([this] { lstErase_Click(); });
    lstErase.DoubleClick.Handle([this] { lstErase_DoubleClick(); });
    lstErase.MouseMove.Handle([this](int row) { ShowListItemTip(lstErase, row); });
    lstErase.Drop.Handle([this](const QStringList &paths) { lstErase_Drop(paths); });
    btnGBErase.Click.Handle([this] { run.EraseList(); });
    Timer1.Tick.Handle([this] { Timer1_Tick(); });
}

void ErasePage::lstErase_Click()
{
    // Kept: a file that has gone since is no one's to mend here; the failure leaves the event.
    const auto status = files.Status(lstErase.Text(), Links::Keep);
    if (!status)
        throw Failure(FailureNumber::FileNotFound);
    lblEraseMessage.SetCaption(
        u"File size: "_s + FormatPicture(static_cast<double>(status->length), u"###,###,###"_s) + u" Byte"_s);
}

void ErasePage::lstErase_DoubleClick()
{
    lstErase.RemoveItem(lstErase.ListIndex());
}

void ErasePage::lstErase_Drop(const QStringList &paths)
{
    Steps steps;
    lblEraseMessage.SetForeColor(NumberOf(SystemColour::ButtonText));
    lblEraseMessage.SetCaption(Hint());
    for (const QString &path : paths)
        lstErase.AddItem(path);
    steps.Do([&] { KillLBDupes(lstErase); });
}

void ErasePage::Timer1_Tick()
{
    const bool isEmpty = lstErase.ListCount() == 0;
    if (isEmpty)
        lblEraseMessage.SetCaption(Hint());
    btnGBErase.SetEnabled(!isEmpty);
}

} // namespace tressel
