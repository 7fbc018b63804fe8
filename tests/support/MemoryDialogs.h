// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Dialogs.h"
#include "support/Journal.h"

#include <QList>

#include <any>
#include <functional>

namespace tressel {

/// What leaves a dialog that no test expects. No Failure, so that no handler takes it for one.
struct UnexpectedDialog {
    QString what;
};

/// A queue of dialogs that a test expects, in this order, each with the user's answer. A dialog out of
/// turn fails the test at once and throws UnexpectedDialog; one that never came fails it at the end.
class MemoryDialogs : public Dialogs {
public:
    explicit MemoryDialogs(Journal &journal)
        : journal(journal)
    {
    }
    ~MemoryDialogs() override;
    MemoryDialogs(const MemoryDialogs &) = delete;
    MemoryDialogs &operator=(const MemoryDialogs &) = delete;

    /// A message box that is the same in everything.
    void ExpectBox(const MessageBox &box, BoxAnswer answer = BoxAnswer::Ok);
    /// A message box of this text, whatever the rest; Boxes() shows it.
    void ExpectBox(const QString &text, BoxAnswer answer = BoxAnswer::Ok);
    void ExpectFatal(int number, const QString &description);
    /// Nothing as the answer means Cancel.
    void ExpectOpenFile(const std::optional<FileDialogAnswer> &answer);
    /// One file; the dialog closes in `folder`, or in the file's folder if none is given.
    void ExpectOpenFile(const QString &path, const QString &folder = {});
    void ExpectSaveFile(const std::optional<FileDialogAnswer> &answer);
    void ExpectSaveFile(const QString &path, const QString &folder = {});
    void ExpectChooseFolder(const std::optional<QString> &answer);
    void ExpectChooseColour(std::optional<quint32> answer);
    void ExpectChooseFont(const std::optional<FontChoice> &answer);
    /// Does something while the dialog expected last is up, before it is answered.
    void WhileUp(std::function<void()> act);

    /// True if all that was expected has come.
    bool AllCame() const { return expected.isEmpty(); }

    // What was asked with, in order; the journal has "Box", "Fatal", "OpenFile", "SaveFile", "ChooseFolder",
    // "ChooseColour" and "ChooseFont" about the text, title, prompt or value.
    const QList<MessageBox> &Boxes() const { return boxes; }
    const QList<FileDialogRequest> &FileRequests() const { return fileRequests; }
    /// The folders that ChooseFolder was asked to start in.
    const QStringList &StartFolders() const { return startFolders; }

    BoxAnswer Show(const MessageBox &box) override;
    void ShowFatal(int number, const QString &description) override;
    std::optional<FileDialogAnswer> OpenFile(const FileDialogRequest &request) override;
    std::optional<FileDialogAnswer> SaveFile(const FileDialogRequest &request) override;
    std::optional<QString> ChooseFolder(const QString &prompt, const QString &folder) override;
    std::optional<quint32> ChooseColour(quint32 colour) override;
    std::optional<FontChoice> ChooseFont(const FontChoice &font) override;

private:
    struct Expected {
        QString what; ///< as in the journal
        QString about; ///< the text that it must have; any if null
        std::optional<MessageBox> box; ///< the box that it must be
        std::any answer;
        std::function<void()> act;
    };

    void Expect(const QString &what, const QString &about, std::any answer);
    Expected TakeNext(const QString &what, const QString &about);
    /// The answer of the next dialog, if it is one of this kind.
    template <typename Answer> Answer Ask(const QString &what, const QString &about);

    Journal &journal;
    QList<Expected> expected;
    QList<MessageBox> boxes;
    QList<FileDialogRequest> fileRequests;
    QStringList startFolders;
};

} // namespace tressel
