#!/usr/bin/env bash
#
# checks/installer.sh SETUP ZIP: under wine, what the installer does for people: it installs what is in
# the zip, for one user, with its entries, over an older one too, and removes it. Files and entries of
# others stay as they are, and where it can't install, so does what is installed.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"
# shellcheck source-path=SCRIPTDIR source=../windows/own.sh
. "$root/windows/own.sh"

expect_arguments 2 2 "$@"
for file in "$@"; do
    [ -f "$file" ] || refuse "there is no file $file"
done
export LC_ALL=C.UTF-8
install_packages nsis unzip xvfb
setup=$(realpath "$1") zip=$(realpath "$2")
work=$(mktemp -d)
trap 'end_windows "$work"; end_screen; rm -rf "$work"' EXIT
start_screen || give_up "Xvfb does not start"
own_windows "$work"
# Or wine would put the menu on the desktop, too.
export WINEDLLOVERRIDES=winemenubuilder.exe=

run=$root/windows/run
unzip -q "$zip" -d "$work"
folder=$work/xml2ryk
cp "$setup" "$drive/xml2ryk-setup.exe"
cd "$drive"
"$root/build/xml2ryk" "$root/examples/orders-windows-1251.xml" "$work/expected.txt" </dev/null >/dev/null 2>&1

# An older version, with programs that are none.
mkdir -p "$work/older/old documents"
echo old | tee "$work/older/"{xml2ryk-window.exe,README.html} >"$work/older/old documents/old.html"
"$root/windows/make-setup" "$work/older" 0.0.1 "$drive/older-setup.exe"

# hold.exe keeps the file $HELD open as most programs do, which lets others read and write, not delete.
# Without one it ends with 1.
cat >"$work/hold.nsi" <<'END'
Target amd64-unicode
SilentInstall silent
RequestExecutionLevel user
OutFile hold.exe
!include LogicLib.nsh
Section
    ReadEnvStr $0 HELD
    System::Call 'kernel32::CreateFileW(w r0, i 0x80000000, i 3, p 0, i 3, i 0, p 0) p.r1'
    ${If} $1 = -1
        SetErrorLevel 1
        Quit
    ${EndIf}
    FileOpen $2 C:\held w
    FileClose $2
    Sleep 60000
SectionEnd
END
makensis -V2 -WX "$work/hold.nsi"
mv "$work/hold.exe" "$drive"

fail() {
    echo "$*" >&2
    exit 1
}

# in_windows CODE ARGUMENT...
in_windows() {
    local wanted=$1 code=0
    shift
    "$run" "$@" </dev/null >"$work/said" 2>&1 || code=$?
    [ "$code" -eq "$wanted" ] ||
        fail "$* ends with $code instead of $wanted, and says: $(iconv -c -f CP866 "$work/said")"
}

# install CODE [FOLDER], install_older FOLDER: the folder comes last, and without quotation marks.
# shellcheck disable=SC2086
install() { in_windows "$1" 'C:\xml2ryk-setup.exe' /S ${2:+/D=C:\\$2}; }
# shellcheck disable=SC2086
install_older() { in_windows 0 'C:\older-setup.exe' /S /D=C:\\$1; }

# remove: as Windows does when it need not ask, to the end of what that starts.
remove() {
    registry | sed -n 's/^"QuietUninstallString"="\(.*\)"$/\1/p' | sed 's/\\\([\\"]\)/\1/g' |
        iconv -t CP866 >remove.bat
    in_windows 0 cmd /c 'C:\remove.bat'
    WINEPREFIX=$work/wine wineserver --wait
}

# hold FILE, release: by a program that runs meanwhile.
hold() {
    rm -f held
    HELD=$1 "$run" 'C:\hold.exe' </dev/null >/dev/null 2>&1 &
    holder=$!
    until [ -e held ]; do
        kill -0 "$holder" || fail "$1 can't be held open"
        sleep 0.1
    done
}
release() {
    kill "$holder"
    wait "$holder" || true
}

# holds FOLDER [FILE...]: the files of the zip and the uninstaller must be in that folder of the drive,
# and those that are named, and nothing else.
holds() {
    local file at=$1
    rm -rf "$work/held"
    cp -r "$at" "$work/held"
    for file in xml2ryk-uninstall.exe "${@:2}"; do
        rm "$work/held/$file" || fail "there is no $file in $at"
        rmdir --ignore-fail-on-non-empty "$(dirname "$work/held/$file")"
    done
    diff -r "$folder" "$work/held" || fail "$at is not what the zip holds"
}

# kept FOLDER: names in "kept" what was renamed there.
kept() { mapfile -t kept < <(cd "$1" && find . -name '*.old*' -printf '%P\n'); }

# registry: what is there of the user, a value a line.
registry() {
    in_windows 0 reg export HKCU 'C:\user.reg' /y
    iconv -f UTF-16 user.reg | tr -d '\r' | sed -e ':a; /\\$/{N; s/\\\n *//; ba}' -e '/(TrueType)"=/d'
}

# set_path VALUE, path_is VALUE: of the user.
set_path() { in_windows 0 reg add 'HKCU\Environment' /v Path /t REG_EXPAND_SZ /d "$1" /f; }
path_is() {
    in_windows 0 reg query 'HKCU\Environment' /v Path
    grep -qFx "    Path    REG_EXPAND_SZ    $1" <<<"$(iconv -f CP866 "$work/said" | tr -d '\r')" ||
        fail "PATH is not $1, but $(iconv -f CP866 "$work/said")"
}

say "installing"
classes='HKCU\Software\Classes'
in_windows 0 reg add "$classes\\.xml" /ve /d others /f
in_windows 0 reg add "$classes\\.xml\\OpenWithProgids" /v others /f
in_windows 0 reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\others' /v DisplayName /d others /f
path="%USERPROFILE%\\bin"
set_path "$path"
registry >"$work/before"
install 0
installed=$(echo users/*/AppData/Local/Programs/xml2ryk)
installed_at="C:\\${installed//\//\\}"
holds "$installed"
path_is "$path;$installed_at"

# What README.md tells to do then. Notepad would not end.
exchange=$drive/Мой\ обмен
mkdir "$exchange"
cp "$root/examples/orders-windows-1251.xml" "$exchange/orders.xml"
sed -n '/^### On Windows$/,/^### On Windows, without/p' "$root/README.md" | sed '/^ *notepad /d' |
    make_blocks "$exchange/block"
[ "$(cd "$exchange" && echo block*.bat)" = "block1.bat block2.bat" ] ||
    fail "README.md has other commands for the installer than a first conversion and a batch file"
for block in block1 block2; do
    rm -f "$exchange/orders.txt"
    (cd "$exchange" && in_windows 0 cmd /c "$block.bat")
    cmp "$work/expected.txt" "$exchange/orders.txt"
done

# Its entries.
version=$(version_in <"$root/CMakeLists.txt")
sed -e "s|FOLDER|${installed_at//\\/\\\\\\\\}|" -e "s/VERSION/$version/" <<'END' >"$work/entries"
[HKEY_CURRENT_USER\Software\Classes\.xml\OpenWithProgids]
"xml2ryk.source"=""
[HKEY_CURRENT_USER\Software\Classes\.yml\OpenWithProgids]
"xml2ryk.source"=""
[HKEY_CURRENT_USER\Software\Classes\Applications\xml2ryk-window.exe]
"FriendlyAppName"="xml2ryk"
[HKEY_CURRENT_USER\Software\Classes\Applications\xml2ryk-window.exe\DefaultIcon]
@="FOLDER\\xml2ryk-window.exe"
[HKEY_CURRENT_USER\Software\Classes\Applications\xml2ryk-window.exe\shell\open\command]
@="\"FOLDER\\xml2ryk-window.exe\" \"%1\""
[HKEY_CURRENT_USER\Software\Classes\Applications\xml2ryk-window.exe\SupportedTypes]
".xml"=""
".yml"=""
[HKEY_CURRENT_USER\Software\Classes\xml2ryk.source]
@="Торговые данные"
[HKEY_CURRENT_USER\Software\Classes\xml2ryk.source\DefaultIcon]
@="FOLDER\\xml2ryk-window.exe"
[HKEY_CURRENT_USER\Software\Classes\xml2ryk.source\shell\open\command]
@="\"FOLDER\\xml2ryk-window.exe\" \"%1\""
[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Uninstall\xml2ryk]
"DisplayIcon"="FOLDER\\xml2ryk-window.exe"
"DisplayName"="xml2ryk"
"DisplayVersion"="VERSION"
"EstimatedSize"=dword:SIZE
"InstallLocation"="FOLDER"
"NoModify"=dword:00000001
"NoRepair"=dword:00000001
"Publisher"="the xml2ryk authors"
"QuietUninstallString"="\"FOLDER\\xml2ryk-uninstall.exe\" /S"
"UninstallString"="\"FOLDER\\xml2ryk-uninstall.exe\""
END
# Values that are new, each kind below its key.
registry | awk 'NR == FNR { if (/^\[/) key = $0; else old[key, $0]; next }
    /^\[/ { key = $0; next }
    /^["@]/ && !/^"Path"=/ && !((key, $0) in old) { if (key != told) print key; told = key; print }' \
    "$work/before" - >"$work/new"
size=$(sed -n 's/^"EstimatedSize"=dword://p' "$work/new")
((16#$size * 1024 >= $(du -sb "$folder" | cut -f 1) / 2)) || fail "the size of the programs is told as 0x$size"
sed 's/dword:'"$size"'$/dword:SIZE/' "$work/new" | diff "$work/entries" - ||
    fail "the entries are not those that were expected"
menu=$(echo users/*/AppData/Roaming/Microsoft/Windows/Start\ Menu/Programs)/xml2ryk
for link in "xml2ryk:xml2ryk-window.exe" "Документы xml2ryk:README.ru.html"; do
    grep -qaF "$installed_at\\${link#*:}" <<<"$(tr -d '\0' <"$menu/${link%:*}.lnk")" ||
        fail "the start menu has no link $link"
done

say "installing where that is not possible"
"$run" "$installed_at\\xml2ryk-window.exe" "$installed_at\\examples\\catalogue.xml" </dev/null >/dev/null 2>&1 &
window=$!
sleep 5
kill -0 "$window" || fail "the window does not stay"
install 2
in_windows 2 "$installed_at\\xml2ryk-uninstall.exe" /S "_?=$installed_at"
holds "$installed"
kill "$window"
wait "$window" || true
hold "$installed_at\\docs\\many-files.html"
install 2
holds "$installed"
release
# An uninstaller that ends with another code than that.
mv "$installed/xml2ryk-uninstall.exe" .
cp hold.exe "$installed/xml2ryk-uninstall.exe"
install 3
mv xml2ryk-uninstall.exe "$installed"
holds "$installed"
# What is new can't be put aside.
aside=xml2ryk-setup.tmp
for file in README.html xml2ryk-uninstall.exe; do
    mkdir -p "$installed/$aside/$file"
    echo >"$installed/$aside/$file/held"
    hold "$installed_at\\$aside\\$file\\held"
    install 2
    release
    rm -r "${installed:?}/$aside/$file"
    rmdir "$installed/$aside" || fail "there are remains of an installation that failed"
    holds "$installed"
done

say "removing"
remove
registry | diff "$work/before" - || fail "entries are left, or those of others are not"
if [ -e "$installed" ] || [ -e "$menu" ]; then fail "files are left"; fi

say "giving up halfway, and being killed there"
# A PATH can't name a folder with a semicolon, but has what looks like it.
halfway="half;way"
install_older "$halfway"
path_is "$path"
set_path "$path;C:\\$halfway"
echo mine >"$halfway/README.ru.html"
hold "C:\\$halfway\\README.ru.html"
install 3
[ "$(find "$halfway" -type f) $(<"$halfway/README.ru.html")" = "$halfway/README.ru.html mine" ] ||
    fail "not just the user's file is left of an installation that failed"
path_is "$path;C:\\$halfway"
registry >"$work/after"
! grep xml2ryk "$work/after" || fail "entries are left of an installation that failed"
install_older "$halfway"
"$run" 'C:\xml2ryk-setup.exe' /S </dev/null >/dev/null 2>&1 &
killed=$!
until [ -e "$halfway/index.html" ]; do
    kill -0 "$killed" || fail "the installation ends before it is killed"
    sleep 0.1
done
kill "$killed"
wait "$killed" || true
release
[ -e "$halfway/$aside/README.ru.html" ] || fail "the installation is killed too late"
echo larger >"$halfway/$aside/of a larger version"
install 0
kept "$halfway"
holds "$halfway" "${kept[@]}"
[[ " ${kept[*]} " == *" xml2ryk.exe.old "* && $(<"$halfway/README.ru.html.old") = mine ]] ||
    fail "something was removed, though it may not have been of the installation that was killed"

say "installing over an older version"
other="Мои программы/xml2ryk 2"
long_path="C:\\$(printf 'long%.0s' {1..500});" # longer than the strings of the installer, and untidy
set_path "$long_path"
install_older "${other//\//\\}"
mkdir "$other/docs"
# Two have the names of new files.
own=("Мои заказы.txt" "old documents/notes.txt" README.ru.html docs/many-files.html docs/many-files.html.old)
for file in "${own[@]}"; do
    echo "my $file" >"$other/$file"
done
install 0
own=("${own[@]:0:2}" README.ru.html.old docs/many-files.html.old{,2})
[ "$(cd "$other" && cat "${own[@]}")" = "$(printf 'my %s\n' "${own[@]:0:2}" README.ru.html docs/many-files.html{.old,})" ] ||
    fail "the user's files are not what they were"
holds "$other" "${own[@]}"
path_is "$long_path;C:\\${other//\//\\}"
set_path "$path" # as one who does not want it there
install 0
path_is "$path"
[[ $(registry) == *"\"DisplayVersion\"=\"$version\""* ]] || fail "the version is still told to be the older one"

say "installing elsewhere, in a folder of others, and where the uninstaller is lost"
install 0 elsewhere
holds elsewhere
find "$other" -type f -printf '%P\n' | sort | diff - <(printf '%s\n' "${own[@]}" | sort) ||
    fail "not just the user's files are left in the older folder"
# What lies beside a copy of the uninstaller is not its own, and what has its name may be any program.
mkdir others planted
echo mine >others/README.html
cp elsewhere/xml2ryk-uninstall.exe others
cp hold.exe planted/xml2ryk-uninstall.exe
cp -r others planted "$work"
registry >"$work/installed"
in_windows 2 'C:\others\xml2ryk-uninstall.exe' /S '_?=C:\others'
rm {.,"$work"}/others/xml2ryk-uninstall.exe
install 2 others
install 2 planted
for folder_of_others in others planted; do
    diff -r "$work/$folder_of_others" "$folder_of_others" || fail "a folder of others is not as it was"
done
registry | diff "$work/installed" - || fail "the entries are not as they were"
# Where the uninstaller is lost, so is who knows whose files are there, and nothing is removed.
rm -r elsewhere
mkdir -p elsewhere/docs
echo mine | tee elsewhere/{README,docs/host}.html >"$work/mine"
install 0
holds elsewhere {README,docs/host}.html.old
cat elsewhere/{README,docs/host}.html.old | diff <(cat "$work"/mine{,}) - || fail "the user's files are not what they were"
: >elsewhere/xml2ryk-uninstall.exe
install 0 ELSEWHERE
kept elsewhere
holds elsewhere "${kept[@]}"
((${#kept[@]} == $(find "$folder" -type f | wc -l) + 3)) || fail "something was removed, though the uninstaller is damaged"
set_path "$path;C:\\elsewhere"
rm elsewhere/xml2ryk-uninstall.exe
install 0 another
holds another
path_is "$path;C:\\another"
rm -r another/examples
echo mine >another/orders.txt
remove
registry | diff "$work/before" - || fail "entries are left, or those of others are not"
[ "$(find another -type f)" = another/orders.txt ] || fail "not just the user's file is left"
