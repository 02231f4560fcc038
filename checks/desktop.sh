#!/usr/bin/env bash
#
# checks/desktop.sh PACKAGE: whether desktops understand what the Debian package of the window tells them:
# its entry, its metadata, and its types. Trade data without a suffix must be opened with the window, what
# only tells of it must not, and *.xml must stay what it is without the package.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
[ -f "$1" ] || refuse "there is no file $1"
install_packages appstream desktop-file-utils libglib2.0-bin libxml2-utils shared-mime-info
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
launched=$(xmllint --xpath '//launchable[@type="desktop-id"]/text()' "$share"/metainfo/*.metainfo.xml)
[ "$launched" = "$entry" ] || fail "the metadata launch $launched"
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
# expect TYPE WORDS: fails with the words, unless the source, which has no suffix, is of that type.
expect() {
    local type
    type=$(type_of "$with" "$work/source")
    [ "$type" = "$1" ] || fail "$2 without a suffix is $type"
}
for source in "$root"/examples/*.xml; do
    expected=application/x-commerceml+xml
    [[ $source != */shop* ]] || expected=application/x-yml-catalog+xml
    cp "$source" "$work/source"
    expect "$expected" "$source"
    opens "$expected" || fail "$entry does not open $expected"
    type=$(type_of "$with" "$source")
    [ "$type" = "$(type_of /usr/share "$source")" ] || fail "$source is $type with the package"
    ! opens "$type" || fail "$entry takes $type from others"
done

for name in КоммерческаяИнформация yml_catalog xml_catalog; do
    expected=application/x-commerceml+xml
    [[ $name != *_catalog ]] || expected=application/x-yml-catalog+xml
    echo "<$name/>" >"$work/source"
    expect "$expected" "a bare $name"
    printf '\xef\xbb\xbf<?xml version="1.0"?>\n<!-- for you -->\n<%s/>\n' "$name" >"$work/source"
    expect "$expected" "a $name with a byte-order mark"
    echo "The shop sends <$name/>, they said." >"$work/source"
    expect text/plain "a note about $name"
    cat >"$work/source" <<END
<?xml version="1.0"?>
<html xmlns="http://www.w3.org/1999/xhtml"><!-- about <$name/> --></html>
END
    expect application/xhtml+xml "a page about $name"
done
