#!/usr/bin/env bash
#
# tests/on-x-server.sh TEST [ARGUMENT...]: runs the test program on an X server of its own, and one for
# Windows, without arguments, on a Windows of its own, too. Ends with 77, the code of a skipped test,
# where there is no X server to be had.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"
# shellcheck source-path=SCRIPTDIR source=../windows/own.sh
. "$root/windows/own.sh"

tools=(Xvfb)
[[ $1 == *.exe ]] || tools+=(xclip)
for tool in "${tools[@]}"; do
    command -v "$tool" >/dev/null || { echo "skipped: no $tool here"; exit 77; }
done
work=
trap '[ -z "$work" ] || { end_windows "$work"; rm -rf "$work"; }; end_screen' EXIT
start_screen || { echo "skipped: Xvfb does not start"; exit 77; }
if [[ $1 != *.exe ]]; then
    QT_QPA_PLATFORM=xcb "$@"
    exit
fi
# Wine asks for the screen once, for all programs of a Windows.
work=$(mktemp -d)
own_windows "$work"
ln -s / "$work/wine/dosdevices/z:"
# There is no window manager to wait for, which would be two seconds for each window.
printf '\n[Software\\\\Wine\\\\X11 Driver]\n"Managed"="N"\n' >>"$work/wine/user.reg"
"$root/tests/on-windows.sh" "$1"
