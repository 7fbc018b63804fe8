// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"

#include <QDir>
#include <QFile>

namespace tressel {

DesktopStage::DesktopStage()
{
    program.folder = folder.Path();
    program.writableFolder = folder.Path();
    PutLanguages();
    desktop = std::make_unique<Desktop>(program, hive);
    Put(keys::ShowTips, QStringLiteral("0"));
    Put(keys::Sound, QStringLiteral("1"));
    // The program folder of a test has no database, and a box of what is missing would wait for an answer.
    Put(keys::DatabaseFile, QString());
}

void DesktopStage::PutLanguages()
{
    // A program without a list of languages says so in a box at its start.
    QDir(folder.Path()).mkdir(QStringLiteral("Lang"));
    QFile list(Place(QStringLiteral("Lang/Language.dat")));
    if (!list.open(QIODevice::WriteOnly))
        qFatal("There is no room for a list of languages.");
}

void DesktopStage::Put(const KeyEntry &key, const QString &text)
{
    desktop->application.settings.Write(key, text);
}

void DesktopStage::Start()
{
    desktop->Start();
    Settle();
}

void DesktopStage::Settle()
{
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
        desktop->machine.updates.Flush();
    }
}

void DesktopStage::OpenEntry(int number)
{
    Form().EyeDropper1.UserSelects(number);
    Settle();
}

} // namespace tressel
