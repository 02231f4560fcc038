#!/usr/bin/env bash
#
# checks/in-fresh-root.sh PACKAGE PROGRAM: as root, installs the Debian package on a new minimal Debian,
# converts an example, which must give what PROGRAM gives, and removes the package again.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=new-debian.sh
. "$(dirname "$(readlink -f "$0")")/new-debian.sh"

expect_arguments 2 2 "$@"
package=$(realpath "$1") program=$(realpath "$2")
set_up_debian "$(. /etc/os-release && echo "$VERSION_CODENAME")"
cp "$package" "$fresh/package.deb"
within apt-get -qq update >&2
within apt-get -qq install --no-install-recommends ./package.deb >&2

example=/usr/share/doc/xml2ryk/examples/orders-windows-1251.xml
within xml2ryk "$example" заказы.txt </dev/null >&2
"$program" "$fresh$example" "$fresh/expected.txt" </dev/null >/dev/null 2>&1
cmp "$fresh/заказы.txt" "$fresh/expected.txt"
rm "$fresh/заказы.txt"
within xml2ryk-batch convert "$example" заказы.txt >&2
cmp "$fresh/заказы.txt" "$fresh/expected.txt"
gzip --test "$fresh"/usr/share/man/man1/xml2ryk{,-batch}.1.gz
# shellcheck disable=SC2016
within bash -c '. /usr/share/bash-completion/completions/xml2ryk
    compopt() { :; }
    COMP_WORDS=(xml2ryk a.xml b.txt --pause --p) COMP_CWORD=4
    _xml2ryk
    [ "${COMPREPLY[*]}" = --purchase ]'
within apt-get -qq purge xml2ryk >&2
[ -z "$(find "$fresh/usr" -name '*xml2ryk*')" ] || { find "$fresh/usr" -name '*xml2ryk*'; exit 1; }
