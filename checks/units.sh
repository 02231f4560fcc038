#!/usr/bin/env bash
#
# checks/units.sh PACKAGE: systemd must have nothing to say of the units in the Debian package, and must
# find there what they start.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
[ -f "$1" ] || refuse "there is no file $1"
install_packages systemd
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
dpkg-deb -x "$1" "$work"
units=$work/usr/share/doc/xml2ryk/examples/systemd
sed -i "s|^ExecStart=/|&$work/|; s|=//|=/|" "$units"/*.service

# What it does not know it only warns of.
said=$(systemd-analyze --man=no verify "$units"/*.service "$units"/*.timer 2>&1) || said+=" (an error)"
[ -z "$said" ] || {
    echo "systemd says: $said" >&2
    exit 1
}
