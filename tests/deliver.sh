#!/usr/bin/env bash
#
# tests/deliver.sh PROGRAM: replacements by workers, with the PROGRAM of deliver.cpp: processes that are
# killed at any moment, disks that are full, and, as root, files of other users.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
program=$(realpath "$1")
work=$(mktemp -d)
chmod 755 "$work"
trap 'rm -rf "$work"' EXIT
cd "$work"
# Where another user can run it.
cp "$program" deliver

fail() {
    echo "$*"
    exit 1
}

# expect CODE TEXT COMMAND...: what a run prints, and its exit code.
expect() {
    local code=0 text
    text=$("${@:3}" 2>&1) || code=$?
    [ "$code $text" = "$1 $2" ] || fail "not \"$1 $2\", but \"$code $text\": ${*:3}"
}

# workers_of PID: those of a batch.
workers_of() { pgrep --parent "$1" || true; }

# await_workers COUNT: has `workers` be those of `batch`, once there are as many.
await_workers() {
    local i
    for ((i = 0; i < 100; ++i)); do
        workers=$(workers_of "$batch")
        [ "$(wc -w <<<"$workers")" -lt "$1" ] || break
        sleep 0.01
    done
}

# wait_for_end PID...: processes end at once when their batch has.
wait_for_end() {
    local pid i
    for pid in "$@"; do
        for ((i = 0; i < 50; ++i)); do
            grep -qs '^State:.[^Z]' "/proc/$pid/status" || break
            sleep 0.02
        done
        [ "$i" -lt 50 ] || fail "a worker goes on without its batch"
    done
}

# big WORD TEXT: a source for that word of deliver.cpp.
big() { printf "%s $2%.0s" "$1" {1..20000}; }
big slow old >old.txt
big slow new >new.txt
echo 'next' >next.txt
echo 'hang until somebody ends this' >hang.txt

# Whatever is killed, and at whatever moment, there is a whole file at the destination; the next run
# finds nothing in its way, and leaves nothing behind. A conversion takes about 120 ms.
for victim in batch worker; do
    committed=0
    for moment in {1..40}; do
        rm -rf out && mkdir out && cp old.txt out/goods.txt
        ./deliver --keep 1 new.txt out/goods.txt >killed.txt 2>&1 &
        batch=$!
        sleep "$(printf '0.%03d' $((moment * 4)))"
        workers=$(workers_of "$batch")
        if [ "$victim" = batch ]; then
            kill -KILL "$batch" 2>/dev/null || true
        elif [ -n "$workers" ]; then
            # shellcheck disable=SC2086
            kill -KILL $workers 2>/dev/null || true
        fi
        code=0
        wait "$batch" 2>wait.txt || code=$?
        # shellcheck disable=SC2086
        wait_for_end $workers
        names=$(ls -A out)
        if cmp -s out/goods.txt new.txt; then
            committed=$((committed + 1))
            [ "$names" = $'goods.txt\ngoods.txt.1' ] || fail "in the folder: $names"
        else
            cmp out/goods.txt old.txt || fail "goods.txt is neither old nor new"
            if [ "$victim" = worker ]; then
                [ "$names" = goods.txt ] || fail "in the folder: $names"
                [ "$code $(<killed.txt)" = '4 out/goods.txt: no answer' ] ||
                    fail "exit code $code: $(<killed.txt)"
            fi
            expect 0 'out/goods.txt: replaced' ./deliver --keep 1 next.txt out/goods.txt
            names=$(ls -A out)
            [ "$names" = $'goods.txt\ngoods.txt.1' ] || fail "in the folder: $names"
            cmp out/goods.txt next.txt
            cmp out/goods.txt.1 old.txt
        fi
    done
    ((committed > 0 && committed < 40)) ||
        fail "40 moments of killing the $victim: $committed runs had ended"
done

# A key or a signal, to the batch alone or to all of the group.
for signal in INT:130 TERM:143 HUP:129; do
    for group in '' -; do
        rm -rf out && mkdir out && cp old.txt out/goods.txt
        # Job control makes it a group, and has it hear Ctrl-C.
        set -m
        ./deliver hang.txt out/goods.txt hang.txt out/other.txt >/dev/null &
        batch=$!
        set +m
        await_workers 2
        sleep 0.05
        kill "-${signal%:*}" -- "$group$batch"
        code=0
        wait "$batch" || code=$?
        [ "$code" = "${signal#*:}" ] || fail "exit code $code after ${signal%:*}"
        # shellcheck disable=SC2086
        wait_for_end $workers
        [ "$(ls -A out)" = goods.txt ] || fail "after ${signal%:*}: $(ls -A out)"
        cmp out/goods.txt old.txt
    done
done

# A batch that is killed takes with it workers that would never end.
./deliver hang.txt out/goods.txt >/dev/null 2>&1 &
batch=$!
await_workers 1
sleep 0.05
kill -KILL "$batch"
wait "$batch" 2>wait.txt || true
# shellcheck disable=SC2086
wait_for_end $workers

# What ends a batch is nothing to a worker, until its batch ends it.
rm -rf out && mkdir out
./deliver new.txt out/goods.txt >worker.txt &
batch=$!
await_workers 1
sleep 0.05
# shellcheck disable=SC2086
kill -TERM $workers
wait "$batch" || fail "$(<worker.txt)"

# Two runs on one destination.
rm -rf out && mkdir out
./deliver new.txt out/goods.txt >first.txt &
first=$!
for ((i = 0; i < 100; ++i)); do
    [ -z "$(ls -A out)" ] || break
    sleep 0.01
done
expect 4 'out/goods.txt: Held' ./deliver old.txt out/goods.txt
expect 0 'out/goods.txt: replaced' ./deliver --wait 20 old.txt out/goods.txt
wait "$first"
[ "$(<first.txt)" = 'out/goods.txt: created' ] || fail "$(<first.txt)"
cmp out/goods.txt old.txt

# A limit of the system, and a disk that is full.
cp old.txt out/goods.txt
(
    ulimit -f 50
    expect 4 'out/goods.txt: not written' ./deliver new.txt out/goods.txt
)
cmp out/goods.txt old.txt
echo 'cut short' >cut.txt
expect 4 'out/goods.txt: NotWhole' ./deliver cut.txt out/goods.txt
cmp out/goods.txt old.txt
[ "$(ls -A out)" = goods.txt ] || fail "in the folder: $(ls -A out)"

[ "$(id -u)" -eq 0 ] || {
    echo "skipped: what needs root"
    exit 77
}

if unshare --mount true; then
    mkdir disk
    # shellcheck disable=SC2016
    expect 4 'disk/goods.txt: not written' unshare --mount bash -c '
        mount -t tmpfs -o size=60k tmpfs disk
        echo old >disk/goods.txt
        code=0
        ./deliver new.txt disk/goods.txt || code=$?
        [ "$(cat disk/goods.txt; ls -A disk)" = "old
goods.txt" ] || echo "the old file is lost"
        exit "$code"'
    # shellcheck disable=SC2016
    expect 4 'disk/goods.txt: NotWritable' unshare --mount bash -c '
        mount -t tmpfs tmpfs disk
        echo old >disk/goods.txt
        mount -o remount,ro disk
        ./deliver new.txt disk/goods.txt'
fi

# owner FILE: of whom it is, and its mode.
owner() { stat -c '%u %g %a' "$1"; }
as_other() { setpriv --reuid 1234 --regid 1234 --groups 1235 "$@"; }

# The owner of the old file stays.
chown 1234:1235 out/goods.txt
chmod 640 out/goods.txt
expect 0 'out/goods.txt: replaced' ./deliver --keep 1 new.txt out/goods.txt
[ "$(owner out/goods.txt)" = '1234 1235 640' ] || fail "$(owner out/goods.txt)"
[ "$(owner out/goods.txt.1)" = '1234 1235 640' ] || fail "$(owner out/goods.txt.1)"

# Another user can do no more than the system lets him.
expect 4 'out/other.txt: NotCreated' as_other ./deliver new.txt out/other.txt
chown 1234 out
expect 0 'out/goods.txt: replaced' as_other ./deliver old.txt out/goods.txt
[ "$(owner out/goods.txt)" = '1234 1235 640' ] || fail "$(owner out/goods.txt)"
expect 0 'out/other.txt: created' as_other ./deliver new.txt out/other.txt
chmod 440 out/other.txt
expect 4 'out/other.txt: NotWritable' as_other ./deliver old.txt out/other.txt
chown 0:1235 out/other.txt
chmod 660 out/other.txt
# That is known ahead of any work.
expect 4 'out/other.txt: OwnerNotKept' as_other timeout 10 ./deliver hang.txt out/other.txt
chown 1234:0 out/other.txt
expect 4 'out/other.txt: OwnerNotKept' as_other ./deliver old.txt out/other.txt
cmp out/other.txt new.txt
[ "$(ls -A out)" = $'goods.txt\ngoods.txt.1\nother.txt' ] || fail "in the folder: $(ls -A out)"
