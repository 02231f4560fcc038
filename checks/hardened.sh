#!/usr/bin/env bash
#
# checks/hardened.sh FILE...: whether each program, or each of the programs in a package, is hardened.
# The installer is not for it: what runs there is Debian's, and what it installs is that of the zip.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 100 "$@"
for file in "$@"; do
    [ -f "$file" ] || refuse "there is no file $file"
done
install_packages binutils binutils-mingw-w64-x86-64 devscripts unzip
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "$*" >&2
    exit 1
}

check_windows() {
    local header flag
    header=$(x86_64-w64-mingw32-objdump -p "$1")
    for flag in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT; do
        grep -qw "$flag" <<<"$header" || fail "$1: no $flag"
    done
    grep -Eq '^Entry 5 [0-9a-f]+ 0*[1-9a-f]' <<<"$header" || fail "$1: no relocations"
    # The library that brings this message along is there for what the compiler has protected.
    grep -qa 'stack smashing detected' "$1" || fail "$1: no stack protector"
}

check_linux() {
    # The compiler sees that each of the few calls that it could fortify stays in bounds, and leaves
    # no trace. The mark of the control flow is missing because start files of Debian 12 lack it, so
    # count the landing pads: two are those of the compiler's own start files.
    hardening-check --nofortify --nocfprotection "$1"
    [ "$(objdump -d "$1" | grep -cw endbr64)" -gt 2 ] || fail "$1: no control flow protection"
}

for file in "$@"; do
    case $file in
        *.deb)
            dpkg-deb -x "$file" "$work"
            for program in "$work"/usr/bin/*; do
                check_linux "$program"
            done
            ;;
        *.zip)
            unzip -q "$file" -d "$work"
            for program in "$work"/xml2ryk/*.exe; do
                check_windows "$program"
            done
            ;;
        *.exe) check_windows "$file" ;;
        *) check_linux "$file" ;;
    esac
done
