// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

namespace tressel {

/// What stands before the application title, in the settings root and in the name under which the
/// application store knows the splitter's settings.
inline constexpr QStringView MakerPrefix = u"Halven Software\\";

/// Key of the older product, below the user's root. Fixed, not built from the application title.
inline constexpr QStringView OlderKeyPath = u"Software\\Halven Software\\Brindlekit\\3.0";

/// Key of the facts about the system and its owner, below the machine's root.
inline constexpr QStringView SystemFactsKeyPath = u"Software\\Microsoft\\Windows NT\\CurrentVersion";

} // namespace tressel
