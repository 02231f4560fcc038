# shellcheck shell=bash
#
# What the commands of this project share: their manners, installing what is missing, building, and
# testing. Sourced by them, under pipefail; all but the tests and --help goes to standard error.

root=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
build_packages=(g++ cmake ninja-build 'qtbase5-dev|qt6-5compat-dev')
# What is made once and kept, outside the tree.
export XML2RYK_CACHE=${XML2RYK_CACHE:-${XDG_CACHE_HOME:-~/.cache}/xml2ryk}

# Some programs turn Ctrl-C into an ordinary failure, which must not look like one of their work.
trap 'trap - INT; kill -INT $$' INT

say() { echo "xml2ryk: $*" >&2; }

give_up() {
    say "$@"
    exit 69 # EX_UNAVAILABLE: no exit code of the program
}

# refuse REASON: for arguments that the script can't use.
refuse() {
    say "$1; \"$0 --help\" tells what it takes"
    exit 64 # EX_USAGE
}

# expect_arguments LEAST MOST ARGUMENT...: refuses options, and a number of arguments that is not
# between the two; --help prints the comment at the head of the script.
expect_arguments() {
    local least=$1 most=$2 argument
    shift 2
    for argument in "$@"; do
        case $argument in
        --help)
            sed -n '3,${/^#/!q; s/^# \{0,1\}//p}' "$0"
            exit 0
            ;;
        -*) refuse "there is no option $argument" ;;
        esac
    done
    [ $# -ge "$least" ] || refuse "an argument is missing"
    [ $# -le "$most" ] || refuse "there is no use for the argument \"${*:most+1:1}\""
}

# keep LOG: adds what it reads to LOG, and tells once a minute what came last: nobody waits long for
# a silent program. It ends with its input, so that Ctrl-C does not break the pipe of who writes.
keep() {
    local line last='' begin=$SECONDS told=$SECONDS
    trap '' INT
    tee -a "$1" | while IFS= read -r -t 60 line || [ $? -gt 128 ]; do
        [ -z "$line" ] || last=$line
        ((SECONDS - told >= 60)) || continue
        told=$SECONDS
        # Compilers name the file at the end.
        [ ${#last} -le 70 ] || last=...${last: -67}
        say "minute $(((SECONDS - begin) / 60)): $last"
    done
}

# version_in: what the CMakeLists.txt that it reads gives as the version of the project.
version_in() { sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p'; }

# writable DIRECTORY: whether it is, or can be made so.
writable() { mkdir -p "$1" 2>/dev/null && [ -w "$1" ]; }

# start_wine COMMAND...: in place of the shell. Where the kernel lays a process out at random, its heap
# lies now and then, one time in some two thousand, where wine keeps data of its own, and the program
# ends with 1 before it begins.
start_wine() {
    ! setarch -R true 2>/dev/null || exec setarch -R "$@"
    exec "$@"
}

# take_turn DESCRIPTOR: waits for the lock on it.
take_turn() {
    flock --nonblock "$1" && return
    say "waiting for another run that builds here"
    flock "$1"
}

# install_packages PACKAGE...: installs those that are missing, where Debian's tools are there.
# Elsewhere it is left to the build to find out whether everything needed is there. Of FIRST|SECOND
# one is enough: the first, if this Debian has it.
install_packages() {
    command -v apt-get >/dev/null || return 0
    local installed missing=() package as_root=() needs_root log
    # shellcheck disable=SC2068
    installed=" $(dpkg-query -W -f '${db:Status-Status}:${Package} ' ${@//|/ } 2>/dev/null || true)"
    for package in "$@"; do
        [[ $installed == *" installed:${package%|*} "* || $installed == *" installed:${package#*|} "* ]] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    needs_root="these packages are missing, and only root can install them: ${missing[*]//|/ or }"
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || give_up "$needs_root"
        as_root=(sudo)
    fi
    log=$(mktemp -t xml2ryk-apt.XXXXXX)
    say "installing ${missing[*]//|/ or }"
    # A source of packages that nobody needs here may well be broken.
    if ! run_apt update || grep -q '^[EW]:' "$log"; then
        [ -s "$log" ] || { rm "$log" && give_up "$needs_root"; }
        say "going on without some lists of packages: $(grep -m 1 '^[EW]:' "$log")"
    fi
    for package in "${!missing[@]}"; do
        missing[package]=$(candidate "${missing[package]}")
    done
    run_apt install --yes --no-install-recommends "${missing[@]}" ||
        give_up "these packages could not be installed: ${missing[*]}; apt-get's output is in $log"
    rm "$log"
}

# candidate PACKAGE, or FIRST|SECOND: the one to install.
candidate() {
    # Not in a pipe: it takes one that is closed early for a failure.
    if [[ $(LC_ALL=C apt-cache policy "${1%|*}") == *"Candidate: "[!\(]* ]]; then
        echo "${1%|*}"
    else
        echo "${1#*|}"
    fi
}

# run_apt ARGUMENT...: a part of install_packages. Waits for others that install, as a new machine
# does by itself: apt-get's own waiting leaves the locks of lists and downloads out. What sudo says
# is for the terminal.
run_apt() {
    local deadline=$((SECONDS + 600)) waiting=
    # shellcheck disable=SC2016
    until "${as_root[@]}" env LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        sh -c 'exec apt-get -q "$@" 2>&1' sh "$@" </dev/null | keep "$log"; do
        grep -q 'Could not get lock' <<<"$(tail -n 4 "$log")" || return
        ((SECONDS < deadline)) || return
        [ -n "$waiting" ] || say "waiting, ten minutes at most, for another program that installs"
        waiting=yes
        : >"$log"
        sleep 3
    done
}

# build PRESET DIRECTORY [TARGET]: installs what is missing, configures once, and builds what has
# changed. Runs at the same time take turns. Who may not write there uses what somebody else has
# built.
build() {
    local preset=$1 directory=$root/$2 target=${3:-all} configured
    if ! writable "$directory"; then
        [ ! -x "$directory/xml2ryk" ] || return 0
        give_up "no right to write in $directory"
    fi
    install_packages "${build_packages[@]}"
    exec 9>"$directory/.lock"
    take_turn 9
    configured=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$directory/CMakeCache.txt" \
        2>/dev/null || true)
    # A tree that was copied or moved brings along a build of the tree it came from.
    if [ "$configured" != "$root" ] || [ ! -f "$directory/build.ninja" ]; then
        say "preparing the build, this once"
        cmake -S "$root" --fresh --preset "$preset" >&2 ||
            give_up "can't configure the build, which needs a C++17 compiler, CMake 3.25, Ninja" \
                "and Qt 5.15, or 6.4 with Core5Compat (on Debian the packages" \
                "${build_packages[*]//|/ or })"
    fi
    # Of Ninja's steps one is enough to tell that there is something to build.
    NINJA_STATUS='[%f/%t] ' cmake --build "$directory" --target "$target" 2>&1 |
        sed -u -e '/^\[0\/\|^\[.*\] Re-running CMake\|^ninja: no work to do/d' \
            -e 's/^\[1\/.*/xml2ryk: building/' -e '/^\[[0-9]*\//d' >&2 || give_up "the build failed"
    exec 9>&-
}

# start_screen, end_screen: an X server for what this script starts, if it has one that starts.
start_screen() {
    local display
    exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp 2>/dev/null)
    screen=$!
    read -r -t 20 display <&3 || return
    export DISPLAY=:$display
}
end_screen() { [ -z "${screen:-}" ] || kill "$screen" 2>/dev/null || true; }

# run_tests PRESET DIRECTORY: of a skipped test, CTest itself tells only that it was.
run_tests() {
    local code=0
    writable "$root/$2" || give_up "no right to write in $root/$2"
    (cd "$root" && ctest --preset "$1") || code=$?
    awk '/^[0-9]+\/[0-9]+ Test: / { name = $3 }
         /^skipped: / { print "skipped " name ":" substr($0, 9) }' \
        "$root/$2/Testing/Temporary/LastTest.log"
    return "$code"
}
