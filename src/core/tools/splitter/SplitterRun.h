// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"
#include "tools/splitter/PartFiles.h"

#include <QDateTime>

namespace tressel {

class SplitterPage;

/// What a split and a join share: how the page stands while one of them runs, the statistics, and what
/// comes behind both. One object a run.
class SplitterRun {
public:
    SplitterRun(const ToolContext &context, SplitterPage &page);

    QString Whole(const QString &path) const; ///< as the page's own
    std::int32_t Length(const QString &path) const;
    bool
    IsThere(const QString &path) const; ///< something that is no folder; a link counts, wherever it leads
    /// Removes a file that is to be made anew, or a link in its place.
    void Remove(const QString &path);

    /// Shuts the page and notes the time.
    void Start();
    void ShowProgressStart(const QString &caption, std::int32_t max);
    void ShowProgress(qint64 bytes); ///< fails with 6 beyond 32 bits
    void ShowFinish(const QString &caption, const QString &count);
    /// Opens the page again.
    void End();
    void OpenFolderIfAsked();

    ToolContext context;
    SplitterPage &page;

private:
    QDateTime startedAt;
};

} // namespace tressel
