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

# What the compiler alone understands is cut from the commands: headers that it has precompiled. clang knows
# neither them nor each of its flags, and reads the headers themselves.
commands=$passed/commands
mkdir -p "$commands"
sed -E 's| -Winvalid-pch -include [^ ]*||; s| -fpch-preprocess||' "$build/compile_commands.json" \
    >"$commands/compile_commands.json"

# Looks at sources of one library as one, since most of the time goes into the headers that they share. A group that
# doesn't pass is halved until the source stands alone that has something wrong with it; so are sources that only
# can't be read together.
check_group() {
    local key source unit said outcome half
    local -a group=("$@")
    key=${group[0]%%$'\t'*}
    source=${group[0]#*$'\t'}
    if [[ ${#group[@]} -eq 1 ]]; then
        if said=$(look_at "$commands" "$source"); then
            : >"$passed/$key"
            return 0
        fi
        printf '%s\n' "$said" | grep -v ' warnings generated\.$'
        return 1
    fi

    unit=$(mktemp -d "$passed/unit.XXXXXX")
    printf '#include "%s"\n' "${group[@]#*$'\t'}" >"$unit/all.cpp"
    python3 - "$commands/compile_commands.json" "$source" "$unit" <<'PYTHON'
import json, sys
commands, source, unit = sys.argv[1:]
entry = next(entry for entry in json.load(open(commands)) if entry["file"] == source)
entry["command"] = entry["command"].replace(source, unit + "/all.cpp")
entry["file"] = unit + "/all.cpp"
json.dump([entry], open(unit + "/compile_commands.json", "w"))
PYTHON
    said=$(look_at "$unit" "$unit/all.cpp")
    outcome=$?
    rm -r "$unit"
    if [[ $outcome -eq 0 ]]; then
        for key in "${group[@]%%$'\t'*}"; do : >"$passed/$key"; done
        return 0
    fi
    half=$((${#group[@]} / 2))
    outcome=0
    check_group "${group[@]:0:half}" || outcome=1
    check_group "${group[@]:half}" || outcome=1
    return $outcome
}

look_at() {
    clang-tidy --quiet -p "$1" --extra-arg=-Wno-unknown-warning-option --warnings-as-errors='*' "$2" 2>&1
}

# Puts lines "KEY<tab>SOURCE", quoted for the shell, onto one line for each group of sources of one library.
groups() {
    local line library last='' count=0 most=16
    while IFS= read -r line; do
        library=${line#*"$root/src/"}
        library=${library%%/*}
        if [[ $count -gt 0 && ($library != "$last" || $count -eq $most) ]]; then
            echo
            count=0
        fi
        printf '%q ' "$line"
        last=$library
        count=$((count + 1))
    done
    [[ $count -gt 0 ]] && echo
}

export -f check_group look_at
export passed commands

mapfile -t work < <(unchecked | sort -t $'\t' -k 2)
echo "clang-tidy: ${#work[@]} files to look at"
[[ ${#work[@]} -eq 0 ]] && exit 0
printf '%s\n' "${work[@]}" | groups | tr '\n' '\0' |
    xargs -0 -P "$(nproc)" -I '{}' bash -c 'check_group {}'
