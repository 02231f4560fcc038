#!/usr/bin/env bash
#
# tests/run-conversion.sh [--accept] PROGRAM CASE: runs one whole conversion.
#
# CASE is a folder. Its `command`, lines of shell that call `xml2ryk`, runs in a copy of the folder,
# with nothing on standard input. What comes of it must be, byte for byte, the folder `expected`:
#   console.txt  standard output, kept in UTF-8 and compared in cp866, with a line "[exit N]" behind
#                each run of the program
#   log.txt      standard error
#   any other    a file that the command made
# --accept takes what comes as the expected folder, to be read before it is committed.
set -u
[ "$1" = --accept ] && accept=yes && shift
program=$(realpath "$1") case=$(realpath "$2")
work=$(mktemp -d)
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
mkdir "$work/case" "$work/actual"
(cd "$case" && tar -c --exclude=./expected --exclude=./command .) | tar -x -C "$work/case"
(cd "$work/case" && find . -type f) | sort >"$work/inputs"

xml2ryk() {
    "$program" "$@"
    local code=$?
    echo "[exit $code]"
    return $code
}
export LC_ALL=C.UTF-8
# shellcheck source=/dev/null
(cd "$work/case" && . "$case/command") </dev/null >"$work/console" 2>"$work/actual/log.txt"
iconv -f CP866 -t UTF-8 "$work/console" >"$work/actual/console.txt"
(cd "$work/case" && find . -type f | sort | comm -23 - "$work/inputs" | tar -c -T -) |
    tar -x -C "$work/actual"

if [ -n "${accept:-}" ]; then
    rm -rf "$case/expected"
    cp -R "$work/actual" "$case/expected"
    exit
fi
diff -r -u "$case/expected" "$work/actual"
