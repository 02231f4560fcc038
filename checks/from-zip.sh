#!/usr/bin/env bash
#
# checks/from-zip.sh ZIP: under wine, what README.md tells a newcomer to do with the zip, word for word:
# unpacks it, also over itself, and runs the commands, which must give what build/xml2ryk gives.
# Then once more in a folder with blanks and Cyrillic letters. It drops files on convert.cmd, runs what
# Windows is to run in the night, and the commands of docs/many-files.md. The texts in the zip must be for
# Windows.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"
# shellcheck source-path=SCRIPTDIR source=../windows/own.sh
. "$root/windows/own.sh"

expect_arguments 1 1 "$@"
export LC_ALL=C.UTF-8
install_packages unzip libxml2-utils
zip=$(realpath "$1")
work=$(mktemp -d)
trap 'end_windows "$work"; rm -rf "$work"' EXIT

fail() {
    echo "$*" >&2
    exit 1
}

own_windows "$work"

# Notepad would need a screen.
sed -n '/^### On Windows, without/,/^### On Debian/p' "$root/README.md" | sed '/^ *notepad /d' |
    make_blocks "$work/block"
[ "$(cd "$work" && echo block*.bat)" = block1.bat ] ||
    fail "README.md has other commands for the zip than a first conversion"

orders=$root/examples/orders-windows-1251.xml
"$root/build/xml2ryk" "$orders" "$work/expected.txt" </dev/null >/dev/null 2>&1

# run BATCH: its answer, which must not be an error.
run() {
    answer=$("$root/windows/run" cmd /c "$1" </dev/null 2>&1 | iconv -c -f CP866) ||
        fail "$1 ends with an error and says: $answer"
}

# try_in FOLDER [NAME]: the steps where the zip is unpacked into that folder of the drive, over an old
# program. NAME is that of the folder in the document, if it is another one.
try_in() {
    local parent=$drive/$1
    mkdir -p "$parent/xml2ryk"
    echo old >"$parent/xml2ryk/xml2ryk.exe"
    unzip -q -o "$zip" -d "$parent"
    unzip -q -o "$zip" -d "$parent"
    sed "s|%USERPROFILE%|${2:-%USERPROFILE%}|" "$work/block1.bat" | iconv -t CP866 >"$drive/steps.bat"
    run 'C:\steps.bat'
    cmp "$work/expected.txt" "$parent/xml2ryk/orders.txt"
}
[ "$(unzip -Z1 "$zip" | cut -d / -f 1 | sort -u)" = xml2ryk ] || fail "not all is in a folder xml2ryk"
home=$(cd "$drive" && echo users/*/AppData)
home=${home%/*}
try_in "$home"
try_in "Мои программы" 'C:\\Мои программы'

folder=$drive/Мой\ обмен
mkdir "$folder"
cp "$orders" "$folder/orders.xml"

say "dropping files on convert.cmd"
# drop FILE...: as Explorer does, which puts names with blanks alone in quotation marks. The cmd of wine
# does not know CMDCMDLINE, where that of Windows has the command line that it was started with.
drop() {
    local file line='C:\windows\system32\cmd.exe /c ""C:\Мои программы\xml2ryk\convert.cmd"'
    for file in "$@"; do
        [[ $file != *" "* ]] || file="\"$file\""
        line+=" $file"
    done
    code=0
    answer=$(CMDCMDLINE="$line\"" "$root/windows/run" cmd /c 'C:\Мои программы\xml2ryk\convert.cmd' x \
        </dev/null 2>&1 | iconv -c -f CP1251) || code=$?
    grep -q 'Нажмите любую клавишу' <<<"$answer" || fail "convert.cmd waits for no key: $answer"
}
mkdir "$drive/R&D" "$folder/Июль (2)"
cp "$orders" "$folder/a&b !1!.xml"
cp "$orders" "$drive/R&D/заказы;^,=1!.XML"
cp "$orders" "$folder/Июль (2)/orders.xml"
echo '<a>' >"$drive/R&D/broken.xml"
echo old >"$drive/R&D/broken.txt"
drop 'C:\Мой обмен\a&b !1!.xml' 'C:\R&D\broken.xml' 'C:\R&D\заказы;^,=1!.XML' 'C:\Мой обмен\Июль (2)'
[ "$code $(grep -c '^Everything is' <<<"$answer") $(grep -c '^Not converted' <<<"$answer")" = "2 3 1" ] ||
    fail "convert.cmd ends with $code and says: $answer"
for converted in "$folder/a&b !1!.txt" "$drive/R&D/заказы;^,=1!.txt" "$folder/Июль (2)/orders.txt"; do
    cmp "$work/expected.txt" "$converted"
done
grep -qx old "$drive/R&D/broken.txt" || fail "a broken source has an exchange file"
rm "$drive/Мои программы/xml2ryk/xml2ryk-batch.exe"
drop 'C:\Мой обмен\orders.xml'
grep -q '^xml2ryk-batch.exe is not beside' <<<"$answer" || fail "convert.cmd does not miss its program: $answer"

say "trying what runs every night"
# Where the installer puts the programs, and on PATH.
unzip -q "$zip" -d "$drive/$home/AppData/Local/Programs"
schedule=$drive/$home/AppData/Local/Programs/xml2ryk/nightly.xml
[ "$(head -c 2 "$schedule" | od -An -tx1)" = " ff fe" ] || fail "the schedule is not in UTF-16"
# scheduled NAME: the text of that element.
scheduled() { xmllint --xpath "string(//*[local-name() = '$1'])" "$schedule"; }
make_blocks "$work/nightly" <"$root/docs/many-files.md"
[ "$(cd "$work" && echo nightly*.bat)" = "nightly1.bat nightly2.bat" ] ||
    fail "docs/many-files.md has other commands for Windows than those for the schedule and the outcome"
mkdir -p "$drive"/exchange/{in,out}
cp "$orders" "$drive/exchange/in/orders.xml"
printf '"%s" %s\r\n' "$(scheduled Command)" "$(scheduled Arguments)" >"$drive/steps.bat"
run 'C:\steps.bat'
cmp "$work/expected.txt" "$drive/exchange/out/orders.txt"
grep -q orders.xml "$drive/exchange/log.txt" || fail "what is scheduled writes no log"
# Wine has no users, and keeps the schedule in the system, which is not this Windows' own.
sed -n '1s/ \/ru.*/ \/f\r/p' "$work/nightly1.bat" >"$drive/steps.bat"
run 'C:\steps.bat'
printf 'schtasks /delete /tn xml2ryk /f\r\n' >"$drive/steps.bat"
run 'C:\steps.bat'
{ printf 'path %%LOCALAPPDATA%%\\Programs\\xml2ryk\r\n' && cat "$work/nightly2.bat"; } >"$drive/steps.bat"
run 'C:\steps.bat'
grep -q '^Everything is in the exchange files' <<<"$answer" || fail "the outcome in cmd: $answer"

say "checking the texts of the zip"
cd "$drive/$home/xml2ryk"
rm orders.txt
find . -name '*.html' -o -name '*.txt' -o -name '*.cmd' | while IFS= read -r text; do
    ! grep -qv $'\r$' "$text" || fail "$text: not the line ends of Windows"
done
for page in README.html README.ru.html; do
    ! grep -n 'scripts/' "$page" || fail "$page has chapters that are not for Windows"
done
