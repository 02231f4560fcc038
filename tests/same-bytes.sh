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

for option in --sale --purchase; do # the first one is none
    files=()
    while IFS= read -r -d '' source; do
        file=$work/${#files[@]}
        cp "$source" "$file.xml"
        "${program[@]}" "$file.xml" "$file.expected" $option </dev/null >/dev/null 2>&1 || true
        [ -e "$file.expected" ] || : >"$file.expected"
        files+=("$file.xml" "$file.actual")
    done < <(find "$root/examples" "$root"/tests/{conversions,surveys} -name '*.xml' -type f -print0)
    "${survey[@]}" --convert $option "${files[@]}"
    for expected in "$work"/*.expected; do
        cmp "$expected" "${expected%.expected}.actual"
    done
done
