// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Saves a picture of the main window, with a sample list loaded and settings of its own:
// tressel-picture FILE [WIDTHxHEIGHT] [--scale FACTOR] [--page ENTRY] [--dark] [--tip]

#include "base/Twips.h"
#include "machine/posix/PosixProgram.h"
#include "settings/HiveTree.h"
#include "widgets/ProgramIcons.h"
#include "windows/Desktop.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>

#include <cstdio>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// What the command line asks for.
struct Wish {
    QString file;
    QSize size; ///< invalid: the program's own
    QString entry = u"1"_s;
    bool dark = false;
    bool tip = false;
};

Wish WishOf(const QApplication &application)
{
    QCommandLineParser parser;
    parser.addPositionalArgument(u"file"_s, u"Where the picture goes."_s);
    parser.addPositionalArgument(u"size"_s, u"WIDTHxHEIGHT of the window."_s);
    const QCommandLineOption scale(u"scale"_s, u"Pixels of the screen to one of the design."_s, u"factor"_s);
    const QCommandLineOption page(u"page"_s, u"The entry of the side bar that is open."_s, u"entry"_s,
                                  u"1"_s);
    const QCommandLineOption dark(u"dark"_s, u"With dark colours of the desktop."_s);
    const QCommandLineOption tip(u"tip"_s, u"The tip window in place of the main one."_s);
    parser.addOptions({scale, page, dark, tip});
    parser.addHelpOption();
    parser.process(application);
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        parser.showHelp(1);
    Wish wish{words.first(), {}, parser.value(page), parser.isSet(dark), parser.isSet(tip)};
    if (const QStringList sides = words.value(1).split(u'x'); sides.size() == 2)
        wish.size = QSize(sides.first().toInt(), sides.last().toInt());
    return wish;
}

/// The scale must be known before the toolkit starts.
void TakeScale(int count, char **arguments)
{
    for (int index = 1; index + 1 < count; ++index) {
        if (qstrcmp(arguments[index], "--scale") == 0)
            qputenv("QT_SCALE_FACTOR", arguments[index + 1]);
    }
}

void UseDarkColours()
{
    const QColor ground(45, 45, 48);
    QPalette dark(QColor(60, 60, 64), ground);
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::Highlight, QColor(53, 116, 191));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(dark);
}

/// A place with something to see in the lists of folders and files.
void FillPlace(const QDir &place)
{
    for (const QString &folder : {u"Drawings"_s, u"Letters"_s, u"Photos"_s, u"Sales"_s})
        place.mkpath(folder);
    for (const QString &name : {u"Birches.jpg"_s, u"Harbour.jpg"_s, u"Lighthouse.jpg"_s, u"Orchard.jpg"_s,
                                u"Regatta.jpg"_s, u"Windmill.jpg"_s}) {
        QFile file(place.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("The sample place can't be filled.");
    }
}

void PrepareSettings(const Machine &machine, const Wish &wish, const QString &place)
{
    Settings settings(machine);
    settings.Write(keys::ShowTips, wish.tip ? u"1"_s : u"0"_s);
    settings.Write(keys::LastFile, QString::fromUtf8(TRESSEL_SAMPLE_LIST));
    settings.Write(keys::FilePath, u"/home/robin/New folders"_s);
    settings.Write(keys::LastDBPath, place);
    // A file that isn't there would be told in a box, with nobody to answer it.
    settings.Write(keys::DatabaseFile, QString());
    settings.Write(keys::SearchPath, place);
    settings.Write(keys::LastNumPath, place);
    settings.Write(keys::IndxBar, wish.entry);
    if (!wish.size.isValid())
        return;
    settings.Write(keys::MainWidth, QString::number(ToTwips(wish.size.width())));
    settings.Write(keys::MainHeight, QString::number(ToTwips(wish.size.height())));
}

/// Lets the window come to rest.
void Settle(Desktop &desktop)
{
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
        desktop.machine.updates.Flush();
    }
}

} // namespace

int main(int count, char **arguments)
{
    TakeScale(count, arguments);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication toolkit(count, arguments);
    const Wish wish = WishOf(toolkit);
    if (wish.dark)
        UseDarkColours();

    const QTemporaryDir holder(QDir::temp().filePath(u"Pictures-XXXXXX"_s));
    const QString place = holder.path();
    FillPlace(QDir(place));
    MemorySettingsHive hive;
    PosixProgram program(count, arguments, {});
    Desktop desktop(program, hive);
    PrepareSettings(desktop.machine.AsMachine(), wish, place);
    desktop.Start();
    Settle(desktop);

    const WindowFace *face = desktop.FaceOf(wish.tip ? u"frmTip"_s : u"frmMain"_s);
    if (!face || !face->Window().grab().save(wish.file)) {
        std::fputs("The picture could not be saved.\n", stderr);
        return 1;
    }
    return 0;
}
