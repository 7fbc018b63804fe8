// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

class NativePath;

/// Gives what `from` names the path `to`, never in place of something that is there. Fails as
/// FileSystem::Rename does.
void RenameWithoutOverwriting(const NativePath &from, const NativePath &to);

/// The same for file systems that can't refuse to overwrite by themselves: looks first, then renames.
/// The look and the step are two, so another program can come between them.
void LookThenRename(const NativePath &from, const NativePath &to);

} // namespace tressel
