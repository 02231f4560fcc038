#!/usr/bin/env bash
#
# tests/run-conversion.sh [--accept] PROGRAM CASE: runs one whole conversion.
#
# CASE is a folder. Its `command`, lines of shell that call `xml2ryk`, the `operations` of
# operations.cpp, the `survey` of survey.cpp or xml2ryk-batch as `batch`, runs in a copy of the
# folder, with nothing on standard input. What comes of it must be, byte for byte, the folder
# `expected`:
#   console.txt  standard output, decoded from cp866 (all of batch/ is UTF-8), with a line "[exit N]"
#                behind each run of the program
#   log.txt      standard error
#   any other    a file that the command made or changed
# --accept takes what comes as the expected folder, to be read before it is committed.
#
# A PROGRAM for Windows runs under wine. Its console and its log are compared without the carriage
# return before each line end, and the log is decoded from cp1251. A case with a file `platform` is
# only for the one that it names, posix or windows; on the other it ends with 77, the code of a
# skipped test.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"
export LC_ALL=C.UTF-8

accept=
[ "${1:-}" != --accept ] || { accept=yes && shift; }
expect_arguments 2 2 "$@"
[ -x "$1" ] || refuse "there is no program $1"
[ -f "$2/command" ] || refuse "there is no case $2"
program=("$(realpath "$1")") case=$(realpath "$2")
operations=("$(dirname "$(realpath "$1")")/tests/operations")
survey=("$(dirname "$(realpath "$1")")/tests/survey")
platform=posix console_encoding=CP866 log_encoding=UTF-8 carriage_return=''
locale=(LC_ALL=en_US.UTF-8) # LANGUAGE counts for nothing in the plain one
batch=("$(dirname "$(realpath "$1")")/xml2ryk-batch")
if [[ $1 == *.exe ]]; then
    platform=windows log_encoding=CP1251 carriage_return=$'\r'
    program=("$root/windows/run" "${program[@]}")
    operations=("$root/windows/run" "${operations[@]}.exe")
    survey=("$root/windows/run" "${survey[@]}.exe")
    batch=("$root/windows/run" "${batch[@]}.exe")
    locale=()
fi
[[ $case != */batch/* ]] || console_encoding=UTF-8 log_encoding=UTF-8
if ! grep -qsx "$platform" "$case/platform" && [ -e "$case/platform" ]; then
    echo "skipped: only for $(cat "$case/platform")"
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -R "$case" "$work/case"
rm -rf "$work/case/expected"
mkdir "$work/actual"
cd "$work/case"

# run COMMAND...: its output, and its exit code.
run() {
    local code=0
    "$@" || code=$?
    echo "[exit $code]"
}
xml2ryk() { run "${program[@]}" "$@"; }
operations() { run "${operations[@]}" "$@"; }
survey() { run "${survey[@]}" "$@"; }
batch() { run env "${locale[@]}" LANGUAGE="${language:-en}" "${batch[@]}" "$@"; }
# shellcheck source=/dev/null
(set +eu && . ./command) </dev/null >"$work/console" 2>"$work/log"
to_text() { iconv -f "$1" -t UTF-8 | sed "s/$carriage_return\$//"; }
to_text "$console_encoding" <"$work/console" >"$work/actual/console.txt"
to_text "$log_encoding" <"$work/log" >"$work/actual/log.txt"
find . -type f -print0 | while IFS= read -r -d '' file; do
    cmp -s "$file" "$case/$file" || cp --parents "$file" "$work/actual"
done

if [ -n "$accept" ]; then
    rm -rf "$case/expected"
    cp -R "$work/actual" "$case/expected"
else
    diff -r -u "$case/expected" "$work/actual"
fi
