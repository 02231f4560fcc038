#!/usr/bin/env bash
#
# checks/in-fresh-root.sh PACKAGES PROGRAM [RELEASE]: as root, installs the Debian packages of the folder
# PACKAGES, one after the other, on a new minimal Debian, of this release if none is given, and uses each,
# word for word as README.md and docs/host.md tell: what xml2ryk converts must be what PROGRAM converts, the
# window must appear, and the program of docs/host.md must give its rows. Then it removes them, and nothing
# must be left.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=new-debian.sh
. "$(dirname "$(readlink -f "$0")")/new-debian.sh"

expect_arguments 2 3 "$@"
packages=$(realpath "$1") program=$(realpath "$2")
for file in "$packages"/{xml2ryk,xml2ryk-window,libxml2ryk-dev}_*.deb; do
    [ -f "$file" ] || refuse "there is no package $file"
done
install_packages xvfb xclip x11-utils
set_up_debian "${3:-$(. /etc/os-release && echo "$VERSION_CODENAME")}"
cp "$packages"/*.deb "$fresh"
within apt-get -qq update >&2

fail() {
    echo "$*" >&2
    exit 1
}

# Nobody is asked here, and what packages recommend would take long.
printf '%s "%s";\n' APT::Get::Assume-Yes true APT::Install-Recommends false quiet 2 >"$fresh/etc/apt/apt.conf.d/here"
say "installing what every Debian has, as README.md takes it"
within apt-get -qq install sudo man-db >&2

# chapter PAGE HEADING NUMBER: that block of commands in the chapter of the page.
# shellcheck disable=SC2031
chapter() {
    awk -v heading="$2" -v number="$3" '/^#+ / { inside = index($0, heading) } !inside { next }
        /^```sh$/ { to = ++count; next } /^```$/ { to = 0 } to == number' "$root/$1"
}
documents=/usr/share/doc/xml2ryk
example=$documents/examples/orders-windows-1251.xml
heading="with the packages"
# The window goes on until it is closed.
chapter README.md "$heading" 1 | grep -v '^xml2ryk-window ' >"$fresh/steps.sh"
shown=$(chapter README.md "$heading" 1 | sed -n 's/^xml2ryk-window //p')
[ -n "$shown" ] || fail "README.md does not tell how to show a source"
say "doing what README.md tells"
within sh -e steps.sh </dev/null >&2
"$program" "$fresh$example" "$fresh/expected.txt" </dev/null >/dev/null 2>&1
cmp "$fresh/orders.txt" "$fresh/expected.txt"
within xml2ryk-batch convert "$example" заказы.txt >&2
cmp "$fresh/заказы.txt" "$fresh/expected.txt"
# shellcheck disable=SC2016
within bash -c '. /usr/share/bash-completion/completions/xml2ryk
    compopt() { :; }
    COMP_WORDS=(xml2ryk a.xml b.txt --pause --p) COMP_CWORD=4
    _xml2ryk
    [ "${COMPREPLY[*]}" = --purchase ]'

gzip --test "$fresh"/usr/share/man/man1/xml2ryk{,-batch,-window}.1.gz

# On an X server outside, which ends it. A desktop knows the window by the class in the desktop entry.
# The screen has 100 dots per inch, which the toolkit would scale icons for, too.
see_window() {
    local window='' class try
    # shellcheck disable=SC2031
    within env DISPLAY="$DISPLAY" QT_FONT_DPI=96 xml2ryk-window "$shown" &
    for ((try = 0; try < 150 && ${#window} == 0; ++try)); do
        sleep 0.2
        window=$(xwininfo -root -tree | sed -n 's/^ *\(0x[0-9a-f]*\) "'"${shown##*/}"' - xml2ryk".*/\1/p')
    done
    [ -n "$window" ] || fail "no window shows $shown"
    class=$(sed -n 's/^StartupWMClass=//p' "$fresh/usr/share/applications/xml2ryk-window.desktop")
    xprop -id "$window" WM_CLASS | grep -F "\"$class\"" || fail "the desktop entry tells another class of window"
    xprop -id "$window" _NET_WM_ICON | grep -F 'Icon (64 x 64)' || fail "the window has no icon"
}
export fresh shown
export -f fail see_window within
# shellcheck disable=SC2031
"$root/tests/on-x-server.sh" bash -euo pipefail -c see_window >&2

# shellcheck disable=SC2031
page=$root/docs/host.md
say "doing what docs/host.md tells"
chapter docs/host.md "The library" 1 >"$fresh/steps.sh"
within sh -e steps.sh </dev/null >&2
# The program goes on until somebody else copies.
chapter docs/host.md "A host" 1 | sed 's/^~/timeout 10 &/' >"$fresh/steps.sh"
code=0
within env QT_QPA_PLATFORM=offscreen sh -e steps.sh >"$fresh/output" || code=$?
[ "$code" -eq 124 ] || fail "the commands of docs/host.md end with $code"
# shellcheck disable=SC2016
sed -n '/^```text$/,/^```$/ { /^```/d; s/⇥/\t/g; p }' "$page" >"$fresh/expected.txt"
tail -n "$(wc -l <"$fresh/expected.txt")" "$fresh/output" | diff "$fresh/expected.txt" -

say "removing them"
chapter README.md "$heading" 2 >"$fresh/steps.sh"
within sh -e steps.sh </dev/null >&2
within apt-get -qq remove libxml2ryk-dev >&2
# The manual pages that were read stay with man.
left=$(find "$fresh"/{etc,usr,var} -name '*xml2ryk*' ! -path '*/var/log/*' ! -path '*/var/cache/man/*')
[ -z "$left" ] || fail "left behind: $left"
