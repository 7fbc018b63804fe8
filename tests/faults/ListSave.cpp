// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Saves a list as the window does when its button is pressed, on the real disc and without a display. The
// window tells a save by its caption alone; so does the exit status here.

#include "forms/Application.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/MemoryMachine.h"

#include <QTextStream>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A user who saves into one file and answers every question with Yes.
class Answers : public MemoryDialogs {
public:
    Answers(Journal &journal, QString filePath)
        : MemoryDialogs(journal)
        , path(std::move(filePath))
    {
    }
    BoxAnswer Show(const MessageBox &) override { return BoxAnswer::Yes; }
    std::optional<FileDialogAnswer> SaveFile(const FileDialogRequest &) override
    {
        return FileDialogAnswer{{path}, {}};
    }

private:
    QString path;
};

MainForm &Start(Application &application)
{
    application.settings.Write(keys::ShowTips, u"0"_s);
    application.Start();
    MainForm &form = application.frmMain();
    for (const QString &entry : {u"Alpha"_s, u"Beta"_s, u"Gamma"_s})
        form.area.LstItem.AddItem(entry);
    return form;
}

} // namespace

int main(int count, char **arguments)
{
    MemoryMachine memory;
    PosixFileSystem files;
    Answers answers(memory.journal, QString::fromLocal8Bit(arguments[count - 1]));
    Application application({files, memory.hive, memory.clock, memory.sound, memory.shell, answers,
                             memory.events, memory.clipboard, memory.screen, memory.program, memory.databases,
                             memory.network});
    MainForm &form = Start(application);
    form.textLists.btnGBSaveFile.UserClicks();
    if (form.Caption().contains(u"saved to"_s))
        return 0;
    QTextStream(stderr) << "not saved: " << arguments[count - 1] << '\n';
    return 1;
}
