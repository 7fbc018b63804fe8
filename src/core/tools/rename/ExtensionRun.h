// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"

#include <QString>

#include <optional>

namespace tressel {

class RenameFolder;
class RenameFrame;
class RenamePage;

/// The run that changes the extensions of a folder's files. The first failure ends it; what was renamed stays
/// so.
class ExtensionRun {
public:
    ExtensionRun(RenamePage &page, RenameFrame &frame, const ToolContext &context);

    void Change();

private:
    /// The extensions of the page: every one becomes `to`, or those that are `from` if it is given.
    struct Fields {
        std::optional<QString> from;
        QString to;
    };

    void ChangeExtensions();
    std::optional<Fields> TakeFields();
    static void RefuseIllegal(const Fields &fields);
    void ChangeExtension(RenameFolder &folder, const QString &name, const QString &extension);

    RenamePage &page;
    RenameFrame &frame;
    ToolContext context;
};

} // namespace tressel
