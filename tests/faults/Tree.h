// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <sys/types.h>

namespace tressel::faults {

enum class EntryKind { File, Folder, Link };

struct Entry {
    EntryKind kind = EntryKind::File;
    mode_t rights = 0; ///< of a file or folder
    std::string contents; ///< of a file, or where a link leads
    bool operator==(const Entry &) const = default;
};

/// All that is below a folder, by the paths from there.
using Tree = std::map<std::string, Entry>;

Tree TreeOf(const std::filesystem::path &folder);

/// What a run under a fault has to be judged by.
struct Evidence {
    Tree before;
    Tree done; ///< after a run that met no fault
    Tree now;
    std::string out; ///< what the run wrote to its standard output
    bool isKilled = false;
};

/// What a tree is found to be, the better ones first.
enum class State {
    Done, ///< all that was wanted is there
    Untouched, ///< all is as it was
    PartWay, ///< some of it is done; what is there is whole
    Leftover, ///< something stands there that neither was nor was wanted
    Damaged, ///< a file is neither the old nor the new one, or has gone
};

struct Finding {
    State state = State::Done;
    std::string what; ///< of the last two
    std::string ownFile; ///< of the last two: a file that wasn't there before
};

/// Each file is the old or the new one, whole and with its rights; nothing else is there; nothing that is to
/// stay has gone, under whichever name; and what is to go has gone only where all that is new stands.
Finding EachWhole(const Evidence &evidence);

} // namespace tressel::faults
