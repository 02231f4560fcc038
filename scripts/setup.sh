# shellcheck shell=bash
#
# What the commands of this project share: installing what is missing, and building. Sourced by
# them, under pipefail; everything it prints goes to standard error.

root=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
build_packages=(g++ cmake ninja-build qtbase5-dev)
# What is made once and kept, outside the tree.
export XML2RYK_CACHE=${XML2RYK_CACHE:-${XDG_CACHE_HOME:-~/.cache}/xml2ryk}

say() { echo "xml2ryk: $*" >&2; }

give_up() {
    say "$@"
    exit 69 # EX_UNAVAILABLE: no exit code of the program
}

# install_packages PACKAGE...: installs those that are missing, where Debian's tools are there.
# Elsewhere it is left to the build to find out whether everything needed is there.
install_packages() {
    command -v apt-get >/dev/null || return 0
    local installed missing=() package as_root=()
    installed=" $(dpkg-query -W -f '${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
    for package in "$@"; do
        [[ $installed == *" installed:$package "* ]] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            give_up "these packages are missing, and only root can install them: ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing ${missing[*]}"
    {
        "${as_root[@]}" apt-get update -qq &&
            "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
                apt-get install -qq --no-install-recommends "${missing[@]}"
    } </dev/null >&2 || give_up "these packages are needed and could not be installed: ${missing[*]}"
}

# build PRESET DIRECTORY [TARGET]: configures once, and builds what has changed. Runs at the same
# time take turns. Who may not write there uses what somebody else has built.
build() {
    local preset=$1 directory=$root/$2 target=${3:-all}
    if ! mkdir -p "$directory" 2>/dev/null || [ ! -w "$directory" ]; then
        [ ! -x "$directory/xml2ryk" ] || return 0
        give_up "no right to build in $directory"
    fi
    (
        flock 9
        cd "$root" || exit
        local configured
        configured=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$directory/CMakeCache.txt" \
            2>/dev/null || true)
        # A tree that was copied or moved brings along a build of the tree it came from.
        if [ "$configured" != "$root" ] || [ ! -f "$directory/build.ninja" ]; then
            say "building, this once"
            cmake --fresh --preset "$preset" >&2 ||
                give_up "can't configure the build, which needs a C++17 compiler, CMake 3.25, Ninja" \
                    "and Qt 5.15 (on Debian the packages ${build_packages[*]})"
        fi
        cmake --build "$directory" --target "$target" -- --quiet 2>&1 |
            sed '/^ninja: no work to do/d' >&2 || give_up "the build failed"
    ) 9>"$directory/.lock"
}
