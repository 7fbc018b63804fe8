// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>

namespace tressel {

/// Everything below a folder by its path from there: what a link leads to and what a file holds, "folder"
/// for a folder, "other" for all else. Links are not followed.
inline std::map<std::string, std::string> CensusOf(const std::filesystem::path &folder)
{
    namespace fs = std::filesystem;
    std::map<std::string, std::string> all;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder)) {
        std::string what = "other";
        std::ifstream file;
        if (entry.is_symlink())
            what = "link to " + fs::read_symlink(entry).string();
        else if (entry.is_directory())
            what = "folder";
        else if (entry.is_regular_file() && (file.open(entry.path(), std::ios::binary), file))
            what = "file " + std::string(std::istreambuf_iterator<char>(file), {});
        all[entry.path().string().substr(folder.string().size() + 1)] = what;
    }
    return all;
}

/// What is in one census and not, or otherwise, in another.
inline std::set<std::string> Gone(const std::map<std::string, std::string> &before,
                                  const std::map<std::string, std::string> &after)
{
    std::set<std::string> gone;
    for (const auto &[path, what] : before) {
        const auto now = after.find(path);
        if (now == after.end() || now->second != what)
            gone.insert(path);
    }
    return gone;
}

} // namespace tressel
