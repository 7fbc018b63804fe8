#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

# Runs clang-tidy over the sources below src/ that a build folder compiles: tidy.sh BUILD-FOLDER
# A file that passed isn't looked at again until it, a header of ours that it reads, or the list of
# checks changes: BUILD-FOLDER/../tidy holds an empty file for each content that passed.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
build=$(cd "$1" && pwd -P)
passed=$build/../tidy
mkdir -p "$passed"

rules=$({ clang-tidy --version; cat "$root/.clang-tidy" "$root/cmake/Flags.cmake"; } | sha256sum)

# What ninja noted while compiling, as lines "SOURCE<tab>FILE": each source of ours with each file of ours it reads.
files_read() {
    ninja -C "$build" -t deps | awk -v root="$root/" '
        /^[^ ].*: #deps/ { source = ""; next }
        NF == 0 { next }
        {
            path = $0; sub(/^ +/, "", path); sub(/^(\.\.\/)+/, root, path)
            if (index(path, root "src/") != 1) next
            if (source == "") { if (path !~ /\.cpp$/) next; source = path }
            print source "\t" path
        }' | sort -u
}

# Prints "KEY<tab>SOURCE" for each source whose content hasn't passed yet.
unchecked() {
    local source read key last=
    local -a reads=()
    close_one() {
        [[ -n $last ]] || return 0
        key=$({ echo "$rules"; sha256sum "${reads[@]}"; } | sha256sum | cut -c1-40)
        [[ -e $passed/$key ]] || printf '%s\t%s\n' "$key" "$last"
    }
    while IFS=$'\t' read -r source read; do
        if [[ $source != "$last" ]]; then
            close_one
            last=$source
            reads=()
        fi
        reads+=("$read")
    done < <(files_read)
    close_one
}

check_one() {
    local key=${1%%$'\t'*} source=${1#*$'\t'} said
    # The compiler's flags stay as they are; clang may not know each of them.
    if said=$(clang-tidy --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option \
        --warnings-as-errors='*' "$source" 2>&1); then
        : >"$passed/$key"
    else
        printf '%s\n' "$said" | grep -v ' warnings generated\.$'
        return 1
    fi
}
export -f check_one
export build passed

mapfile -t work < <(unchecked)
echo "clang-tidy: ${#work[@]} files to look at"
[[ ${#work[@]} -eq 0 ]] && exit 0
printf '%s\0' "${work[@]}" | xargs -0 -P "$(nproc)" -I '{}' bash -c 'check_one "$1"' check '{}'
