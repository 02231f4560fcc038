#!/usr/bin/env bash
#
# checks/in-next-debian.sh [RELEASE [HIDDEN]]: as root, follows the README on a minimal Debian of the
# next release, trixie if none is given: with the last commit and nothing else it converts an example,
# which must give what build/xml2ryk gives, runs every test, and builds the program of docs/host.md with
# what is installed then. It is a Debian that no longer has the package HIDDEN.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=new-debian.sh
. "$(dirname "$(readlink -f "$0")")/new-debian.sh"

expect_arguments 0 2 "$@"
set_up_debian "${1:-trixie}"
# shellcheck disable=SC2031
[ $# -lt 2 ] || printf 'Package: %s\nPin: release *\nPin-Priority: -1\n' "$2" \
    >"$fresh/etc/apt/preferences.d/hidden"
mkdir "$fresh/xml2ryk"
# shellcheck disable=SC2031
git -c safe.directory="$root" -C "$root" archive HEAD | tar -x -C "$fresh/xml2ryk"

example=examples/orders-windows-1251.xml
within xml2ryk/scripts/convert "xml2ryk/$example" out.txt </dev/null >/dev/null
# shellcheck disable=SC2031
"$root/build/xml2ryk" "$root/$example" "$fresh/expected.txt" </dev/null >/dev/null 2>&1
cmp "$fresh/out.txt" "$fresh/expected.txt"
within xml2ryk/scripts/test </dev/null
within xml2ryk/checks/host.sh xml2ryk/build </dev/null
