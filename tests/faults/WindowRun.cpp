// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The program with its window, without a display: WindowRun [TOOL PATH]. When it is up a tool of it is put to
// work at the path, if one is named, and then it is asked to end. It saves its settings as at every end. What
// the window tells of a failure goes to standard error, and then it ends with 1, as where the run wasn't
// brought to its end.

#include "machine/posix/PosixProgram.h"
#include "machine/posix/PosixSystemFacts.h"
#include "settings/FileHive.h"
#include "windows/Desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <string_view>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A tool, and how its user works with it.
struct Tool {
    std::string_view name;
    void (*work)(MainForm &form, const QString &path);
    bool (*isThrough)(const MainForm &form);
    /// What tells on its page that it failed; empty if nothing does. Boxes are heard without it.
    QString (*failure)(const MainForm &form) = [](const MainForm &) { return QString(); };
};

void MakeList(MainForm &form, const QString &folder)
{
    form.listing.ChckValg.SetValue(1);
    form.listing.CboFilePath.UserEdits(folder);
    form.listing.btnGBMakeList.UserClicks();
}

bool IsListed(const MainForm &form)
{
    return form.area.lblStatusLine.Caption() == u"Generate File list - Finished"_s;
}

/// The page of the splitter with the file in its list.
SplitterPage &WithFile(MainForm &form, const QString &file)
{
    form.splitter.chkOpenExplorer.SetValue(0);
    form.splitter.chkDeleteParts.SetValue(0);
    form.splitter.cmbSplitSize.SetText(u"300"_s);
    form.splitter.cboFileName.AddItem(file);
    form.splitter.cboFileName.UserSelects(0);
    return form.splitter;
}

void Split(MainForm &form, const QString &file)
{
    WithFile(form, file).btnGBSplitFile.UserClicks();
}

void Join(MainForm &form, const QString &file)
{
    WithFile(form, file).btnGBJoinFile.UserClicks();
}

bool IsCutOrJoined(const MainForm &form)
{
    return form.splitter.lblFileCount.Caption().contains(u"Finished"_s);
}

QString SplitterFailure(const MainForm &form)
{
    const QString shown = form.splitter.lblFileCount.Caption();
    if (shown.endsWith(u"Error"_s) || shown == u"Join Count: No Input Files"_s)
        return shown;
    const bool isShut = !form.splitter.btnGBSplitFile.IsEnabled() || !form.splitter.btnGBJoinFile.IsEnabled();
    return isShut && !IsCutOrJoined(form) ? u"the button is shut"_s : QString();
}

void Erase(MainForm &form, const QString &folder)
{
    form.erase.lstErase.UserDrops({folder + u"/secret.txt"_s, folder + u"/other.txt"_s});
    form.erase.Timer1.Elapse();
    form.erase.btnGBErase.UserClicks();
}

/// It says so in every case.
bool IsErased(const MainForm &form)
{
    return form.erase.lblEraseMessage.Caption() == u"Successfully Deleted"_s;
}

void Rename(MainForm &form, const QString &folder)
{
    form.rename.txtCurrentPath.UserEdits(folder);
    form.rename.optRename.Button(RenamePage::Both).UserSelects();
    form.rename.optCase.Button(RenamePage::Uppercase).UserSelects();
    form.rename.btnGBRename.UserClicks();
}

/// It says so in every case.
bool IsRenamed(const MainForm &form)
{
    return form.area.lblStatusLine.Caption().startsWith(u"Total file count is "_s);
}

void RemoveEmptyFolders(MainForm &form, const QString &folder)
{
    form.Dispatch([&] { form.emptyFolders.DirListRemove.SetPath(folder); });
    form.emptyFolders.btnGBToolbarSearch.UserClicks();
    form.emptyFolders.btnGBToolbarDeleteAll.UserClicks();
}

bool AreRemoved(const MainForm &form)
{
    return form.area.lblStatusLine.Caption() == u"Found 0"_s;
}

constexpr Tool tools[]{
    {"report", MakeList, IsListed},
    {"split", Split, IsCutOrJoined, SplitterFailure},
    {"join", Join, IsCutOrJoined, SplitterFailure},
    {"erase", Erase, IsErased},
    {"rename", Rename, IsRenamed},
    {"empty", RemoveEmptyFolders, AreRemoved},
};

/// Somebody before the window, who says yes to whatever is asked and hears what failed.
class Onlooker {
public:
    Onlooker()
    {
        QObject::connect(&glances, &QTimer::timeout, [this] { Glance(); });
        constexpr int often = 5; // milliseconds
        glances.start(often);
    }

    void Tell(const QString &text)
    {
        heardOfFailure = true;
        std::fprintf(stderr, "told in the window: %s\n", qPrintable(text.simplified()));
    }
    bool HeardOfFailure() const { return heardOfFailure; }

private:
    void Glance()
    {
        const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        QAbstractButton *button = box->button(QMessageBox::Yes);
        if (!button) {
            Tell(box->text());
            button = box->defaultButton();
        }
        button->click();
    }

    QTimer glances;
    bool heardOfFailure = false;
};

/// Whether the tool got through.
bool Work(MainForm &form, std::string_view name, const QString &path, Onlooker &onlooker)
{
    const Tool *tool = std::ranges::find(tools, name, &Tool::name);
    if (tool == std::end(tools))
        qFatal("There is no such tool.");
    tool->work(form, path);
    const QString failure = tool->failure(form);
    if (!failure.isEmpty())
        onlooker.Tell(failure);
    return tool->isThrough(form);
}

} // namespace

int main(int count, char **arguments)
{
    int toolkitCount = 1;
    QApplication toolkit(toolkitCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    const PosixSystemFacts facts;
    FileHive hive(FileHive::DefaultFolder(), facts);
    Desktop *running = nullptr;
    Onlooker onlooker;
    bool gotThrough = true;
    PosixProgram program(1, arguments, [&] {
        return SaveSettings(hive, running) && gotThrough && !onlooker.HeardOfFailure();
    });
    Desktop desktop(program, hive);
    running = &desktop;
    desktop.Start();
    constexpr int withTool = 3;
    QTimer::singleShot(0, [&] {
        if (count == withTool)
            gotThrough = Work(desktop.application.frmMain(), arguments[1],
                              QString::fromLocal8Bit(arguments[2]), onlooker);
        desktop.End();
    });
    return QApplication::exec();
}
