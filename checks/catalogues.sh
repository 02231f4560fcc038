#!/usr/bin/env bash
#
# checks/catalogues.sh: whether the catalogues of words/ are what scripts/catalogues makes of the code,
# and every text is translated.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 0 0 "$@"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$root"
git ls-files -coz --exclude-standard | xargs -0 cp --parents -t "$work"
"$work/scripts/catalogues"
for catalogue in words/*.ts words/*.qm; do
    cmp "$catalogue" "$work/$catalogue" || {
        say "$catalogue is not up to date: run scripts/catalogues"
        exit 1
    }
done
