// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/erase/FileErasure.h"

#include "base/Numbers.h"
#include "base/Pictures.h"
#include "base/Steps.h"
#include "base/Version.h"
#include "machine/Clock.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/TextFile.h"
#include "tools/ClickSound.h"
#include "tools/RunWatch.h"
#include "tools/erase/ErasePage.h"

#include <QLocale>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// What the page's bar shows while nothing is erased.
constexpr std::int16_t restValue = 0;
/// The number under which every file is opened for its two lines.
constexpr int numberOfLines = 2;

} // namespace

std::int32_t BlocksToErase(qint64 length)
{
    const qint64 blocks = length / eraseBlock + 1;
    return ToInt32(static_cast<double>(blocks));
}

FileErasure::FileErasure(const ToolContext &context, ErasePage &erasePage)
    : page(erasePage)
    , machine(context.machine)
    , clickSound(context.clickSound)
    , watch(context.watch)
{
}

void FileErasure::EraseList()
{
    Steps steps;
    clickSound.Play();
    page.lblEraseMessage.SetForeColor(NumberOf(SystemColour::ButtonText));
    const int count = page.lstErase.ListCount();
    watch.Started(count);
    for (int turn = 0; turn < count; ++turn) {
        steps.Do([&] {
            // The list's own text goes with its row, also in a run that comes in between.
            const QString path = page.lstErase.Item(0);
            watch.Next(path);
            WipeFileClean(path);
        });
        steps.Do([&] { page.lstErase.RemoveItem(0); });
    }
    page.lblOverwrite.SetCaption(u"Ready"_s);
    // Kept: files that failed end with this text too.
    constexpr ColourNumber red = 0x0000FF;
    page.lblEraseMessage.SetForeColor(red);
    page.lblEraseMessage.SetCaption(u"Successfully Deleted"_s);
}

void FileErasure::WipeFileClean(const QString &FileName)
{
    try {
        // A file that another program holds is left alone; held by ourselves it would shut out a second run.
        machine.files.Open(FileName, OpenFor::Changing, Sharing::Exclusive)->Close();
        const int number = FreeNumber();
        OpenFile &file = *(openFiles[number] = machine.files.Open(FileName, OpenFor::Changing));
        const std::int32_t blocks = BlocksToErase(file.Length());
        page.ProgrBar.SetValue(restValue);
        page.ProgrBar.SetRange(0, blocks);
        page.lblOverwrite.SetCaption(u"Times to overwrite current files "_s
                                     + FormatPicture(blocks, u"###,###,###"_s));
        Overwrite(file, blocks);
        file.Close();
        openFiles.erase(number);
        LeaveTwoLines(FileName);
        machine.files.RemoveFile(FileName);
        page.ProgrBar.SetValue(restValue);
        watch.Did(Outcome::Removed, FileName);
    } catch (const Failure &failure) {
        TellFailure(FileName, failure);
    }
}

void FileErasure::Overwrite(OpenFile &file, std::int32_t blocks)
{
    const QByteArray first(eraseBlock, 'X');
    const QByteArray second(eraseBlock, ' ');
    for (std::int32_t block = 1; block <= blocks; ++block) {
        machine.events.LetEventsRun();
        const qint64 position = file.Position();
        file.Write(first);
        file.Seek(position);
        file.Write(second);
        page.ProgrBar.SetValue(block);
    }
}

void FileErasure::LeaveTwoLines(const QString &FileName)
{
    if (openFiles.contains(numberOfLines))
        throw Failure(FailureNumber::FileAlreadyOpen);
    OpenFile &file = *(openFiles[numberOfLines] = machine.files.Open(FileName, OpenFor::Changing));
    file.Resize(0);
    const QString date = QLocale().toString(machine.clock.Now().date(), QLocale::ShortFormat);
    const QString lines = u"Erased by Tressel, the maker of many folders\r\n"_s + page.lblOverwrite.Caption()
        + u" and secure deleted "_s + date + u"\r\n"_s;
    file.Write(EncodeText(lines, NameBytes::Raw));
    file.Close();
    openFiles.erase(numberOfLines);
}

void FileErasure::TellFailure(const QString &FileName, const Failure &failure)
{
    watch.Failed(FileName, failure);
    if (failure.number == FailureNumber::PathFileAccessError) {
        machine.dialogs.Show(
            {u"Folders ''"_s + FileName + u"'' cannot erased !!!"_s, ApplicationTitle, BoxIcon::Exclamation});
    }
    page.lblEraseMessage.SetForeColor(NumberOf(SystemColour::ButtonText));
    page.lblEraseMessage.SetCaption(u"Drag and drop files into list"_s);
}

int FileErasure::FreeNumber() const
{
    int number = 1;
    while (openFiles.contains(number))
        ++number;
    return number;
}

} // namespace tressel
