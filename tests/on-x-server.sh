#!/usr/bin/env bash
#
# tests/on-x-server.sh COMMAND...: runs the command on an X server of its own. Ends with 77, the
# code of a skipped test, where there is none to be had.
set -u
for tool in Xvfb xclip; do
    command -v "$tool" >/dev/null || { echo "skipped: no $tool here"; exit 77; }
done
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp 2>/dev/null)
server=$!
trap 'kill "$server"' EXIT
read -r -t 20 display <&3 || { echo "skipped: Xvfb does not start"; exit 77; }
DISPLAY=:$display QT_QPA_PLATFORM=xcb "$@"
