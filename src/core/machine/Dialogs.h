// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/FontFace.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tressel {

enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Cancel, Yes, No };

/// A message box. `defaultAnswer` is the button that Enter presses; none: the first one.
struct MessageBox {
    QString text;
    QString title;
    BoxIcon icon = BoxIcon::None;
    BoxButtons buttons = BoxButtons::Ok;
    std::optional<BoxAnswer> defaultAnswer = {};
    bool operator==(const MessageBox &) const = default;
};

/// What a file dialog is asked with.
struct FileDialogRequest {
    QString title;
    QString folder; ///< where it opens
    QString fileName; ///< what its name field holds at first
    QString filter; ///< "Label|*.a;*.b|Label|*.c"
    int filterIndex = 1; ///< 1-based; an index beyond the filters means the first
    QString defaultExtension; ///< with or without its dot
    bool several = false; ///< several files may be chosen, all of which exist
    bool askBeforeOverwriting = false;
    bool mayBeMissing = false; ///< in an open dialog: a file that isn't there may be named too
    bool centreOnOwner = true; ///< else on the screen
};

/// What the user chose, and the folder that the dialog stood in when it closed.
struct FileDialogAnswer {
    QStringList paths;
    QString folder;
};

/// A font and the colour of what is written in it.
struct FontChoice : FontFace {
    quint32 colour = 0; ///< 0x00BBGGRR
};

/// The windows in which the user is asked something. All return when the user has answered;
/// nothing in the answer means Cancel.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual BoxAnswer Show(const MessageBox &box) = 0;
    /// The box that comes up when a failure leaves an event: "Run-time error 'N':" and the description.
    virtual void ShowFatal(int number, const QString &description) = 0;

    virtual std::optional<FileDialogAnswer> OpenFile(const FileDialogRequest &request) = 0;
    virtual std::optional<FileDialogAnswer> SaveFile(const FileDialogRequest &request) = 0;
    /// A folder, starting at `folder` if that isn't empty.
    virtual std::optional<QString> ChooseFolder(const QString &prompt, const QString &folder) = 0;
    /// A colour as 0x00BBGGRR, starting at `colour`.
    virtual std::optional<quint32> ChooseColour(quint32 colour) = 0;
    virtual std::optional<FontChoice> ChooseFont(const FontChoice &font) = 0;
};

} // namespace tressel
