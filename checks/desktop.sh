#!/usr/bin/env bash
#
# checks/desktop.sh PACKAGE: whether desktops understand what the Debian package of the window tells them:
# its entry, its metadata, and its types. Trade data without a suffix must be opened with the window, and
# *.xml must stay what it is without the package.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
[ -f "$1" ] || refuse "there is no file $1"
install_packages appstream desktop-file-utils libglib2.0-bin shared-mime-info
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
dpkg-deb -x "$1" "$work"
share=$work/usr/share
entry=xml2ryk-window.desktop

fail() {
    echo "$*" >&2
    exit 1
}

said=$(desktop-file-validate "$share/applications/$entry") || true
[ -z "$said" ] || fail "desktop-file-validate says: $said"
appstreamcli validate --no-net --pedantic "$share"/metainfo/*.metainfo.xml
icon=$(sed -n 's/^Icon=//p' "$share/applications/$entry")
[ "$(find "$share/icons/hicolor" -name "$icon.png" -o -name "$icon.svg" | wc -l)" -eq 7 ] ||
    fail "there are not seven icons $icon"

# An entry whose program is not there does not count.
export XDG_DATA_HOME=$work/nobody LC_ALL=C.UTF-8 PATH=$work/usr/bin:$PATH
with=$share:/usr/share
# type_of FOLDERS FILE: what those who look into these folders take the file for.
type_of() { XDG_DATA_DIRS=$1 gio info -a standard::content-type "$2" | sed -n 's/.*content-type: //p'; }
# opens TYPE: whether the window is among what opens files of that type.
opens() { XDG_DATA_DIRS=$with gio mime "$1" | grep "$entry" >/dev/null; }
XDG_DATA_DIRS=$with update-mime-database "$share/mime"
update-desktop-database "$share/applications"
for source in "$root"/examples/*.xml; do
    expected=application/x-commerceml+xml
    [[ $source != */shop* ]] || expected=application/x-yml-catalog+xml
    cp "$source" "$work/source"
    type=$(type_of "$with" "$work/source")
    [ "$type" = "$expected" ] || fail "$source without a suffix is $type"
    opens "$type" || fail "$entry does not open $type"
    type=$(type_of "$with" "$source")
    [ "$type" = "$(type_of /usr/share "$source")" ] || fail "$source is $type with the package"
    ! opens "$type" || fail "$entry takes $type from others"
done
