# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2154

# Sourced by ./run and ./test, which have set $root to the project's folder: brings the packages of
# packages.txt onto the machine and a build folder into a state in which it can be built.
# Needs no more than bash, dpkg and apt.

# Prints the packages of the list that aren't installed, one a line.
missing_packages() {
    local wanted installed package
    wanted=$(sed 's/#.*//; s/[[:space:]]//g; /^$/d' "$root/packaging/packages.txt")
    # dpkg-query fails when it has never heard of one of them, and still lists the others: under set -e that
    # failure would end this shell with an empty list, as if nothing were missing.
    # shellcheck disable=SC2016,SC2086
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2>/dev/null) || true
    for package in $wanted; do
        grep -qxF "installed $package" <<<"$installed" || echo "$package"
    done
}

# Installs what is missing; touches neither apt nor the network when nothing is.
install_packages() {
    local list missing as_root=()
    list=$(missing_packages) || return 1
    mapfile -t missing < <(printf '%s' "$list")
    [[ ${#missing[@]} -eq 0 ]] && return 0
    if [[ $EUID -ne 0 ]]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and installing them takes root or sudo: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get -qq update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get -qq -y --no-install-recommends install "${missing[@]}" >/dev/null &&
        return 0
    echo "These packages could not be installed: ${missing[*]}" >&2
    return 1
}

# Configures the build folder of a preset, unless that was done for this source folder and these presets.
configure() {
    local preset=$1 build=$root/build/$1
    if [[ -f $build/build.ninja && $build/build.ninja -nt $root/CMakePresets.json ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$build/CMakeCache.txt"; then
        return 0
    fi
    # From nothing: a folder that came from another place or other presets holds answers that don't hold here.
    (cd "$root" && cmake --fresh --preset "$preset" --log-level=WARNING)
}

# Builds targets of a preset: build PRESET [TARGET...]; without targets everything.
build() {
    local preset=$1 targets=()
    shift
    [[ $# -gt 0 ]] && targets=(--target "$@")
    (cd "$root" && cmake --build --preset "$preset" "${targets[@]}")
}
