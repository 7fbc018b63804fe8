// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

namespace tressel {

class OptionGroup;
class RenameFolder;
class RenamePage;
class Steps;
struct Failure;

/// What the three runs of the rename page share: the page's lock, progress, Cancel, the running total, and
/// how an entry gets its new name.
class RenameFrame {
public:
    RenameFrame(RenamePage &page, const ToolContext &context);

    /// For the start of a run: keeps everything of the page but btnGBCancel out of it.
    void LockPathPage();
    /// For the end of a run: frees the page again, empties the bar and shows the total.
    void UnlockPathPage();
    void SetProgressRange(std::int16_t minimum, std::int16_t maximum);
    /// Writes the status text as well, as StepProgress does.
    void SetProgressValue(std::int16_t value);
    /// One more, unless that were beyond the maximum.
    void StepProgress();
    void ShowFileCount();

    /// Puts back the total and the texts of the page, a value that can't be read left out.
    void LoadRenameSettings(Steps &steps);
    /// Writes what LoadRenameSettings reads.
    void SaveRenameSettings();

    /// What all runs do: the click, the page locked, `work`, the page free again. A failure ends the work and
    /// is told in the words that `messageOf` has for its number; empty words are none.
    void Run(const std::function<void()> &work, const std::function<QString(int)> &messageOf);
    void ShowError(const QString &text);
    /// True if the path is long enough to be one; tells if it isn't.
    bool HasPath();
    /// What the entries of an option group "Folders", "Files", "Both" ask for: folders first, then files.
    static QStringList Wanted(const RenameFolder &folder, const OptionGroup &kinds);
    /// How many those are. Fails with 6 beyond 16 bits.
    static std::int16_t CountOf(const QStringList &names);
    /// True if there are any; tells if there aren't.
    bool HasEntries(std::int16_t count);
    /// Range and value of the bar for a run over so many entries.
    void StartProgress(std::int16_t count);
    /// Gives each of the entries its new name and counts it. Cancel ends it after the entry under way.
    void RenameEach(RenameFolder &folder, const QStringList &names,
                    const std::function<QString(const QString &name)> &newNameOf);
    /// For each entry before it is touched: lets pending events run and steps the progress.
    void ComeTo(const RenameFolder &folder, const QString &name);
    /// The first and the second of the two renames that an entry goes through, by way of the new name with a
    /// "_" behind it: so a change of case alone reaches every file system. A failure of the second one leaves
    /// the entry under that name.
    void RenameToDetour(RenameFolder &folder, const QString &newName);
    void RenameFromDetour(RenameFolder &folder, const QString &name, const QString &newName);
    /// Leaves the entry under its name with the "_", since the new one is taken.
    void StayOnDetour();
    /// One more in the total. Fails with 6 beyond 32 bits.
    void CountFile();

    std::int32_t TotalFileCount = 0; ///< entries processed, those of earlier starts of the program included
    bool CancelRename = false; ///< the run ends after the entry under way

    /// What follows a message about a text or path with a character that it must not hold.
    static const QString IllegalCharacterList;

private:
    void EnablePage(bool enabled);
    void ShowProgress();

    RenamePage &page;
    ToolContext context;
    QString underWay; ///< path of the entry that the run is at, under its present name
    QString progressText; ///< the last that was shown, and for which fraction; at first for none
    double progressShown = -1;
};

} // namespace tressel
