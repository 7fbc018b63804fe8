#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

# Tests the setting up of a machine as ./run and ./test do it, without a machine to set up: the package tools are
# stand-ins on the PATH that note how they were called. The last line counts as Qt Test's does.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
passed=0
failed=0

# A checkout with a list of two packages, and stand-ins that say what $place/installed and $place/apt-status hold.
fresh_checkout() {
    rm -rf "${place:?}"/*
    mkdir -p "$place/checkout/packaging" "$place/bin"
    cp "$root/run" "$root/test" "$place/checkout/"
    cp "$root/packaging/setup.sh" "$place/checkout/packaging/"
    printf '# what is needed\ng++\ncmake   # builds\n' >"$place/checkout/packaging/packages.txt"
    : >"$place/installed"
    echo 0 >"$place/apt-status"
    stand_in dpkg-query 'status=0
        for package in "${@:4}"; do
            if grep -qxF "$package" "$PLACE/installed"; then echo "installed $package"; else status=1; fi
        done
        exit $status'
    stand_in apt-get 'echo "apt-get $*" >>"$PLACE/calls"; exit "$(cat "$PLACE/apt-status")"'
    stand_in sudo '"$@"'
    stand_in cmake 'echo "cmake $*" >>"$PLACE/calls"; exit 3'
    : >"$place/calls"
}

stand_in() {
    printf '#!/bin/bash\n%s\n' "$2" >"$place/bin/$1"
    chmod +x "$place/bin/$1"
}

# Runs a command of the checkout with the stand-ins in front; what it says goes to $place/said.
in_checkout() {
    (cd "$place/checkout" && PLACE=$place PATH=$place/bin:$PATH "$@") >"$place/said" 2>&1
}

# Notes one outcome: check NAME COMMAND...
check() {
    local name=$1
    shift
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAILED: $name"
        sed 's/^/    /' "$place/said" "$place/calls"
    fi
}

said() { grep -qF -- "$1" "$place/said"; }
called() { grep -qF -- "$1" "$place/calls"; }
not() { ! "$@"; }

# The missing packages as a shell with set -e sees them, which is how ./run calls.
missing_under_e() {
    in_checkout bash -c 'set -euo pipefail; root=$PWD; source packaging/setup.sh; missing_packages'
}

fresh_checkout
missing_under_e
check "A machine that has never heard of a package misses them all" \
    test "$(cat "$place/said")" = $'g++\ncmake'

fresh_checkout
echo cmake >"$place/installed"
missing_under_e
check "What is installed isn't missing" test "$(cat "$place/said")" = 'g++'

fresh_checkout
printf 'g++\ncmake\n' >"$place/installed"
in_checkout bash -c 'set -euo pipefail; root=$PWD; source packaging/setup.sh; install_packages'
check "Nothing is asked of apt where nothing is missing" test ! -s "$place/calls"

fresh_checkout
in_checkout ./run
status=$?
check "The first command installs what is missing" called "install g++ cmake"
check "... and then builds" called "cmake --fresh"
check "... whose failure is its own" test "$status" -ne 0

for command in run test; do
    fresh_checkout
    echo 100 >"$place/apt-status"
    in_checkout "./$command"
    status=$?
    check "./$command ends where packages can't be installed" test "$status" -ne 0
    check "./$command says which could not be installed" \
        said "These packages could not be installed: g++ cmake"
    check "./$command doesn't build then" not called "cmake"
done

echo "Totals: $passed passed, $failed failed, 0 skipped"
[[ $failed -eq 0 ]]
