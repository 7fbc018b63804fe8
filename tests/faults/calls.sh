#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

# Names the calls on files that a program makes and the library doesn't stand before: calls.sh LIBRARY PROGRAM...
# Fails if there is one: a sweep would pass it over. Left out is what takes a path and changes nothing (access),
# what works on open folders in memory (closedir), and fwrite, with which the language's library, where it is linked
# into a program, writes its last words: a file of ours would be opened first, and fopen is looked for.
set -uo pipefail
library=$1
shift
names='open|creat|read|readv|write|writev|sendfile|copy_file_range|sync|syncfs|fsync|fdatasync|close|rename|link|symlink|'
names+='readlink|unlink|remove|mkdir|rmdir|mknod|mkstemp|mkdtemp|stat|lstat|fstat|statx|statvfs|fstatvfs|readdir|lseek|'
names+='truncate|ftruncate|fallocate|posix_fallocate|chmod|fchmod|chown|lchown|fchown|utimens|futimens|utimes|flock|'
names+='lockf|[fl]?getxattr|[fl]?setxattr|[fl]?removexattr|syscall|fopen|freopen'

# The bare names of what a file has (--defined-only) or wants (--undefined-only) of the kind above.
calls() { nm -D "$1" "$2" | awk '{ print $NF }' | sed 's/@.*//' | grep -xE "(p|f)?($names)(at|v|2)*(64)?" |
    grep -vx fwrite | sort -u; }

outcome=0
for program in "$@"; do
    while IFS= read -r call; do
        echo "The fault library doesn't stand before $call, which $(basename "$program") calls"
        outcome=1
    done < <(comm -13 <(calls --defined-only "$library") <(calls --undefined-only "$program"))
done
exit $outcome
