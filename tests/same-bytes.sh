#!/usr/bin/env bash
#
# tests/same-bytes.sh PROGRAM SURVEY: converts all sources of the tests and the examples by PROGRAM and
# by SURVEY, the program of survey.cpp: the exchange files must be the same.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"
expect_arguments 2 2 "$@"
program=("$1") survey=("$2")
[[ $1 != *.exe ]] || program=("$root/windows/run" "$1") survey=("$root/windows/run" "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

files=()
while IFS= read -r -d '' source; do
    name=${#files[@]}
    cp "$source" "$work/$name.xml"
    "${program[@]}" "$work/$name.xml" "$work/$name.expected" </dev/null >/dev/null 2>&1 || true
    [ -e "$work/$name.expected" ] || : >"$work/$name.expected"
    files+=("$work/$name.xml" "$work/$name.actual")
done < <(find "$root/examples" "$root"/tests/{conversions,surveys} -name '*.xml' -type f -print0)
[ ${#files[@]} -gt 0 ]
"${survey[@]}" --convert "${files[@]}"
for expected in "$work"/*.expected; do
    cmp "$expected" "${expected%.expected}.actual"
done
