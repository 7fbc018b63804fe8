// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryDialogs.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QString DescriptionOfBox(const MessageBox &box)
{
    return u"text \"%1\", title \"%2\", icon %3, buttons %4, default %5"_s.arg(box.text, box.title)
        .arg(static_cast<int>(box.icon))
        .arg(static_cast<int>(box.buttons))
        .arg(box.defaultAnswer ? static_cast<int>(*box.defaultAnswer) : -1);
}

bool Offers(BoxButtons buttons, BoxAnswer answer)
{
    switch (buttons) {
    case BoxButtons::Ok:
        return answer == BoxAnswer::Ok;
    case BoxButtons::OkCancel:
        return answer == BoxAnswer::Ok || answer == BoxAnswer::Cancel;
    case BoxButtons::YesNo:
        return answer == BoxAnswer::Yes || answer == BoxAnswer::No;
    case BoxButtons::YesNoCancel:
        return answer != BoxAnswer::Ok;
    }
    return false;
}

QString FatalText(int number, const QString &description)
{
    return u"%1 %2"_s.arg(number).arg(description);
}

FileDialogAnswer OneFile(const QString &path, const QString &folder)
{
    return {{path}, folder.isNull() ? path.left(path.lastIndexOf(u'\\')) : folder};
}

} // namespace

MemoryDialogs::~MemoryDialogs()
{
    for (const Expected &missing : expected)
        ADD_FAILURE() << "expected but never shown: " << qPrintable(missing.what) << ' '
                      << qPrintable(missing.about);
}

void MemoryDialogs::Expect(const QString &what, const QString &about, std::any answer)
{
    expected.append({what, about, {}, std::move(answer), {}});
}

void MemoryDialogs::ExpectBox(const MessageBox &box, BoxAnswer answer)
{
    Expect(u"Box"_s, box.text, answer);
    expected.last().box = box;
}

void MemoryDialogs::ExpectBox(const QString &text, BoxAnswer answer)
{
    Expect(u"Box"_s, text, answer);
}

void MemoryDialogs::ExpectFatal(int number, const QString &description)
{
    Expect(u"Fatal"_s, FatalText(number, description), {});
}

void MemoryDialogs::ExpectOpenFile(const std::optional<FileDialogAnswer> &answer)
{
    Expect(u"OpenFile"_s, {}, answer);
}

void MemoryDialogs::ExpectOpenFile(const QString &path, const QString &folder)
{
    ExpectOpenFile(OneFile(path, folder));
}

void MemoryDialogs::ExpectSaveFile(const std::optional<FileDialogAnswer> &answer)
{
    Expect(u"SaveFile"_s, {}, answer);
}

void MemoryDialogs::ExpectSaveFile(const QString &path, const QString &folder)
{
    ExpectSaveFile(OneFile(path, folder));
}

void MemoryDialogs::ExpectChooseFolder(const std::optional<QString> &answer)
{
    Expect(u"ChooseFolder"_s, {}, answer);
}

void MemoryDialogs::ExpectChooseColour(std::optional<quint32> answer)
{
    Expect(u"ChooseColour"_s, {}, answer);
}

void MemoryDialogs::ExpectChooseFont(const std::optional<FontChoice> &answer)
{
    Expect(u"ChooseFont"_s, {}, answer);
}

void MemoryDialogs::WhileUp(std::function<void()> act)
{
    expected.last().act = std::move(act);
}

MemoryDialogs::Expected MemoryDialogs::TakeNext(const QString &what, const QString &about)
{
    journal.Note(what, about);
    if (expected.isEmpty() || expected.first().what != what
        || (!expected.first().about.isNull() && expected.first().about != about)) {
        const QString wanted =
            expected.isEmpty() ? u"none"_s : expected.first().what + u' ' + expected.first().about;
        ADD_FAILURE() << "unexpected dialog: " << qPrintable(what) << ' ' << qPrintable(about)
                      << "\nexpected: " << qPrintable(wanted);
        throw UnexpectedDialog{what + u' ' + about};
    }
    const Expected next = expected.takeFirst();
    if (next.act)
        next.act();
    return next;
}

template <typename Answer> Answer MemoryDialogs::Ask(const QString &what, const QString &about)
{
    return std::any_cast<Answer>(TakeNext(what, about).answer);
}

BoxAnswer MemoryDialogs::Show(const MessageBox &box)
{
    boxes += box;
    const Expected next = TakeNext(u"Box"_s, box.text);
    const auto answer = std::any_cast<BoxAnswer>(next.answer);
    if (next.box && *next.box != box) {
        ADD_FAILURE() << "another box: " << qPrintable(DescriptionOfBox(box))
                      << "\nexpected: " << qPrintable(DescriptionOfBox(*next.box));
    }
    if (!Offers(box.buttons, answer))
        ADD_FAILURE() << "a box without the button for that answer: " << qPrintable(DescriptionOfBox(box));
    return answer;
}

void MemoryDialogs::ShowFatal(int number, const QString &description)
{
    TakeNext(u"Fatal"_s, FatalText(number, description));
}

std::optional<FileDialogAnswer> MemoryDialogs::OpenFile(const FileDialogRequest &request)
{
    fileRequests += request;
    return Ask<std::optional<FileDialogAnswer>>(u"OpenFile"_s, request.title);
}

std::optional<FileDialogAnswer> MemoryDialogs::SaveFile(const FileDialogRequest &request)
{
    fileRequests += request;
    return Ask<std::optional<FileDialogAnswer>>(u"SaveFile"_s, request.title);
}

std::optional<QString> MemoryDialogs::ChooseFolder(const QString &prompt, const QString &folder)
{
    startFolders += folder;
    return Ask<std::optional<QString>>(u"ChooseFolder"_s, prompt);
}

std::optional<quint32> MemoryDialogs::ChooseColour(quint32 colour)
{
    return Ask<std::optional<quint32>>(u"ChooseColour"_s, QString::number(colour, 16));
}

std::optional<FontChoice> MemoryDialogs::ChooseFont(const FontChoice &font)
{
    return Ask<std::optional<FontChoice>>(u"ChooseFont"_s, font.family);
}

} // namespace tressel
