#!/usr/bin/env bash
#
# tests/key-on-windows.sh PROGRAM: the pause on a console of wine, which a terminal shows. A key counts
# without Enter and is not echoed, and an arrow is one key, although the C runtime makes two of it.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
program=$(realpath "$1") run=$root/windows/run
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
echo '<shop/>' >source.xml
prompt='Press any key to continue...'
printf '%s\n' 'Source file: source.xml' 'Destination file: missing/out.txt' \
    '"Reading file: source.xml ... " ' 'Error opening output text file!' 'missing/out.txt' "$prompt" \
    'Error getting documents...' "$prompt" >expected.txt

# What the screen shows; wine moves the cursor over a blank.
screen() { sed -E 's/\x1b\[1C/ /g; s/\x1b\[[?0-9;]*[A-Za-z]//g; s/\r//g' screen; }

fail() {
    echo "$*; on the screen:"
    screen
    exit 1
}

# wait_for COUNT: until there are that many prompts; a little later there must be no more.
wait_for() {
    local i
    for ((i = 0; i < 200; ++i)); do
        [ "$(screen | grep -cF "$prompt")" -lt "$1" ] || break
        sleep 0.1
    done
    sleep 0.5
    [ "$(screen | grep -cF "$prompt")" -eq "$1" ] || fail "no $1 prompts"
    kill -0 "$terminal" 2>/dev/null || fail "the program has not waited for a key"
}

for keys in $'k \e[A' $'\e[A р'; do
    rm -f keys
    mkfifo keys
    exec 3<>keys
    TERM=xterm script --quiet --flush --return /dev/null \
        --command "'$run' '$program' source.xml missing/out.txt --pause" <keys >screen &
    terminal=$!
    wait_for 1
    printf %s "${keys% *}" >&3
    wait_for 2
    printf %s "${keys#* }" >&3
    code=0
    wait "$terminal" || code=$?
    [ "$code" -eq 3 ] || fail "exit code $code"
    screen | diff expected.txt - || fail "another screen than expected"
done
