// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ComboBox.h"

namespace tressel {

class Settings;

/// The folders that were listed lately: the entries of a combo, oldest first, told apart without regard
/// to case, five of them kept in the settings. A step that fails is ignored.
class RecentPaths {
public:
    RecentPaths(ComboBox &CboFilePath, Settings &settings);

    /// Fills the list from the settings and takes its first entry as the text, unless all five are there.
    void LoadRecentPaths();
    /// Puts the combo's text into the list, if it isn't there, and the list into the settings.
    void SaveRecentPath();
    /// Adds a path that isn't in the list and leaves the text as it is.
    void AddDropped(const QString &path);

private:
    bool Holds(const QString &path) const;

    ComboBox &CboFilePath;
    Settings &settings;
};

} // namespace tressel
