// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Makes the folders of a list of paths, each ended by NUL, with one system call each.

#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/stat.h>

int main(int count, char **arguments)
{
    if (count != 2)
        return 2;
    std::ifstream file(arguments[1], std::ios::binary);
    const std::string paths{std::istreambuf_iterator<char>(file), {}};
    for (std::size_t at = 0; at < paths.size(); at = paths.find('\0', at) + 1) {
        if (mkdirat(AT_FDCWD, paths.c_str() + at, 0777) != 0) {
            std::perror(paths.c_str() + at);
            return 1;
        }
    }
    return 0;
}
