#!/usr/bin/env bash
#
# tests/on-windows.sh TEST: runs the test program for Windows, and shows what it found, which it would
# tell a debugger of Windows.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

log=$(mktemp)
trap 'rm "$log"' EXIT
code=0
"$root/windows/run" "$1" -o "Z:$log,txt" || code=$?
cat "$log"
exit "$code"
