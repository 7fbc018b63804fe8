// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Dialogs.h"

class QDialog;
class QFileDialog;
class QWidget;

namespace tressel {

class BusyCursor;

/// The dialogs of the toolkit: the desktop's own where it has one for the purpose. Each stands over the
/// window in front, and the mouse pointer is at rest while it is up.
class QtDialogs : public Dialogs {
public:
    /// `title` stands on boxes that have none of their own.
    QtDialogs(BusyCursor &cursor, QString title);

    BoxAnswer Show(const MessageBox &box) override;
    void ShowFatal(int number, const QString &description) override;
    std::optional<FileDialogAnswer> OpenFile(const FileDialogRequest &request) override;
    std::optional<FileDialogAnswer> SaveFile(const FileDialogRequest &request) override;
    std::optional<QString> ChooseFolder(const QString &prompt, const QString &folder) override;
    std::optional<quint32> ChooseColour(quint32 colour) override;
    std::optional<FontChoice> ChooseFont(const FontChoice &font) override;

private:
    int Run(QDialog &dialog, bool centreOnOwner = true);
    std::optional<FileDialogAnswer> AskForFile(QFileDialog &dialog, const FileDialogRequest &request);
    static QWidget *Owner();

    BusyCursor &cursor;
    QString title;
};

} // namespace tressel
