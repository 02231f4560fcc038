#!/usr/bin/env bash
#
# tests/same-bytes.sh PROGRAM SURVEY: converts all sources of the tests and the examples by PROGRAM and
# by SURVEY, the program of survey.cpp: the exchange files must be the same. For Windows the examples
# are enough, since a start of wine takes longer than all else.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"
expect_arguments 2 2 "$@"
program=("$1") survey=("$2")
folders=("$root/examples" "$root"/tests/{conversions,surveys})
if [[ $1 == *.exe ]]; then
    program=("$root/windows/run" "$1") survey=("$root/windows/run" "$2")
    folders=("$root/examples")
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for option in --sale --purchase; do # the first one is none
    files=()
    while IFS= read -r -d '' source; do
        file=$work/${#files[@]}
        cp "$source" "$file.xml"
        : >"$file.expected"
        code=0
        "${program[@]}" "$file.xml" "$file.expected" $option </dev/null >"$work/console" 2>&1 || code=$?
        [[ $code == [023] ]] || { cat "$work/console" && echo "exit $code: $source" && exit 1; }
        files+=("$file.xml" "$file.actual")
    done < <(find "${folders[@]}" -name '*.xml' -type f -print0)
    "${survey[@]}" --convert $option "${files[@]}"
    for expected in "$work"/*.expected; do
        cmp "$expected" "${expected%.expected}.actual"
    done
done
