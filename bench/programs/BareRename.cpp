// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Renames the entries of a folder with one system call each: tressel-bare-rename FOLDER PAIRS
// PAIRS is a file of old and new names in turn, each ended by NUL.

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>

int main(int count, char **arguments)
{
    if (count != 3)
        return 2;
    const int folder = open(arguments[1], O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // Read in one go, so that hardly anything but the calls takes time.
    std::string names(std::filesystem::file_size(arguments[2]), '\0');
    std::ifstream(arguments[2], std::ios::binary)
        .read(names.data(), static_cast<std::streamsize>(names.size()));
    for (std::size_t at = 0; at < names.size();) {
        const std::size_t next = names.find('\0', at) + 1;
        if (renameat2(folder, names.c_str() + at, folder, names.c_str() + next, RENAME_NOREPLACE) != 0) {
            std::perror(names.c_str() + at);
            return 1;
        }
        at = names.find('\0', next) + 1;
    }
    return 0;
}
