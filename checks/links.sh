#!/usr/bin/env bash
#
# checks/links.sh FOLDER|PACKAGE...: whether each link of the documents in it leads somewhere: those of
# HTML, and those of Markdown that is read as text. A page must be whole, say what it is in, in a list of
# pages too, load nothing, and name no page by its source.
# A package is a zip, a Debian package or a tarball of the source.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 100 "$@"
for place in "$@"; do
    [ -e "$place" ] || refuse "there is no $place"
done
export LC_ALL=C.UTF-8
install_packages unzip libxml2-utils pandoc
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "$*" >&2
    exit 1
}

# attributes XPATH PAGE: their values.
attributes() {
    { xmllint --html --xpath "$1" "$2" 2>/dev/null || true; } | sed -n 's/^ *[a-z]*="\(.*\)"$/\1/p'
}

check_page() {
    local language=en
    [[ $1 != *.ru.html ]] || language=ru
    grep -q "<html [^>]* lang=\"$language\"" "$1" || fail "$1: not marked as $language"
    grep -q 'charset="utf-8"' "$1" || fail "$1: no charset"
    [ -n "$(xmllint --html --xpath '//body//h1' "$1" 2>/dev/null)" ] || fail "$1: has no heading"
    [ "$(tail -n 1 "$1" | tr -d '\r')" = "</html>" ] || fail "$1: is cut off"
    ! grep -qi '<script' "$1" || fail "$1: has a script"
    ! attributes '//@src | //@srcset | //@poster | //@data | //link/@href' "$1" | grep -v '^data:' ||
        fail "$1: loads this"
    ! { xmllint --html --xpath '//style | //@style' "$1" 2>/dev/null | grep -io '@import\|url([^)]*' |
        grep -v "^url([\"']*data:"; } || fail "$1: has a style that loads this"
    ! xmllint --html --xpath '//a[contains(@href, ".html") and contains(concat(., "|"), ".md|")]' "$1" 2>/dev/null ||
        fail "$1: names a page by its source"
    ! grep '<pre><code>scripts/' "$1" || fail "$1: shows a command of the repository"
    local part='//section[@lang="ru"]'
    case $1 in
    */index.html) [ -n "$(attributes "$part//@href" "$1")" ] || fail "$1: no part in Russian" ;;
    *.ru.html) part=//nav ;;
    esac
    ! attributes "$part//a[not(ancestor::*[@lang=\"en\"])]/@href" "$1" | grep -v '\.ru\.html$\|index\.html$' ||
        fail "$1: not told to be in English"
}

# check_links DOCUMENT: of Markdown, those of the page that it would be.
check_links() {
    local link target
    attributes '//@href | //@src' "$1" | { grep -v '^https*:\|^data:' || true; } |
        while IFS= read -r link; do
            [[ $link != \#* ]] || link=$(basename "$1")$link
            target=$(dirname "$1")/${link%%#*}
            [ -e "$target" ] || fail "$1: nothing at $link"
            [[ $link != *#* ]] || grep -qF "id=\"${link#*#}\"" "$target" || fail "$1: no place $link"
        done
}

for place in "$@"; do
    rm -rf "$work/place" && mkdir "$work/place"
    case $place in
        *.deb) dpkg-deb -x "$place" "$work/place" ;;
        *.zip) unzip -q "$place" -d "$work/place" ;;
        *.tar.gz) tar -xzf "$place" -C "$work/place" ;;
        *) cp -R "$place/." "$work/place" ;;
    esac
    (
        cd "$work/place"
        mapfile -t documents < <(find . -name '*.html' -o -name '*.md' ! -name '*.1.md')
        [ ${#documents[@]} -gt 0 ] || fail "$place: no documents"
        for document in "${documents[@]}"; do
            case $document in
                *.html) check_page "$document" ;;
                *)
                    pandoc --from gfm --to html5 --standalone --metadata pagetitle=x --output "$work/page" "$document"
                    mv "$work/page" "$document"
                    ;;
            esac
        done
        for document in "${documents[@]}"; do
            check_links "$document"
        done
    )
done
