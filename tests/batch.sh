#!/usr/bin/env bash
#
# tests/batch.sh PROGRAM: what runs of xml2ryk-batch come to when something is in their way: killed
# processes, signals, other runs, time, memory, disks that are full, and, as root, other users.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
work=$(mktemp -d)
chmod 755 "$work"
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
# Where another user can run it.
cp "$1" "$work/batch"
cd "$work"
# The sanitizer of leaks looks for them in a process of its own, which is no worker to be killed.
export LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=0

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

# expect_names FOLDER NAME...: all that is in it, also what is hidden.
expect_names() {
    local names
    names=$(ls -A "$1")
    [ "$names" = "$(printf '%s\n' "${@:2}")" ] || fail "in $1:"$'\n'"$names"
}

# wait_until COMMAND...: two seconds at most.
wait_until() {
    local i
    for ((i = 0; i < 100; ++i)); do
        ! "$@" || return 0
        sleep 0.02
    done
    fail "in vain: $*"
}

workers_of() { cat "/proc/$1"/task/*/children 2>/dev/null | tr ' ' '\n' | grep . || true; }
has_workers() { [ "$(workers_of "$1" | wc -l)" -ge "$2" ]; }
is_over() { ! grep -qs '^State:.[^Z]' "/proc/$1/status"; }
is_held() { [ -n "$(find "$1" -name '.xml2ryk-new-*')" ]; }

# feed COUNT WORD: a source of so many offers.
feed() {
    echo '<yml_catalog><shop><categories><category id="1">Tools</category></categories><offers>'
    seq "$1" | sed "s|.*|<offer id=\"&\"><name>$2 &</name><categoryId>1</categoryId>\
<price>&</price><description>A text of some length for each of them</description></offer>|"
    echo '</offers></shop></yml_catalog>'
}
feed 2 small >small.xml
feed 10000 old >old.xml
feed 10000 new >new.xml
./batch convert --into . small.xml old.xml new.xml >/dev/null

# Whatever is killed, and at whatever moment, there is a whole file at the destination; the next run
# finds nothing in its way, and leaves nothing behind.
begin=${EPOCHREALTIME/./}
./batch convert --keep 1 new.xml measured.txt >/dev/null
duration=$((${EPOCHREALTIME/./} - begin)) # in microseconds
for victim in batch worker; do
    committed=0
    for moment in {1..40}; do
        rm -rf out && mkdir out && cp old.txt out/goods.txt
        ./batch convert --keep 1 new.xml out/goods.txt >killed.txt 2>&1 &
        batch=$!
        pause=$((duration * moment / 20))
        sleep "$(printf '%d.%06d' $((pause / 1000000)) $((pause % 1000000)))"
        workers=$(workers_of "$batch")
        if [ "$victim" = batch ]; then
            kill -KILL "$batch" 2>/dev/null || true
        elif [ -n "$workers" ]; then
            kill -KILL "$workers" 2>/dev/null || true
        fi
        code=0
        wait "$batch" 2>/dev/null || code=$?
        [ -z "$workers" ] || wait_until is_over "$workers"
        if cmp -s out/goods.txt new.txt; then
            committed=$((committed + 1))
            expect_names out goods.txt goods.txt.1
        else
            cmp out/goods.txt old.txt || fail "goods.txt is neither old nor new"
            if [ "$victim" = worker ]; then
                expect_names out goods.txt
                [ "$code $(<killed.txt)" = \
                    '4 NOT WRITTEN out/goods.txt: the process that read the source died' ] ||
                    fail "exit code $code: $(<killed.txt)"
            fi
            expect 0 'OK out/goods.txt: 2 offers' ./batch convert --keep 1 small.xml out/goods.txt
            expect_names out goods.txt goods.txt.1
            cmp out/goods.txt small.txt
            cmp out/goods.txt.1 old.txt
        fi
    done
    ((committed > 0 && committed < 40)) ||
        fail "40 moments of killing the $victim: $committed runs had ended"
done

# Sources that nobody writes to.
mkfifo hang.xml other.xml

# A key or a signal, to the batch alone or to all of the group.
for signal in INT:130 TERM:143 HUP:129; do
    for group in '' -; do
        rm -rf out && mkdir out && cp old.txt out/hang.txt
        # Job control makes it a group, and has it hear Ctrl-C.
        set -m
        ./batch convert --jobs 2 --into out hang.xml other.xml small.xml >/dev/null &
        batch=$!
        set +m
        wait_until has_workers "$batch" 2
        workers=$(workers_of "$batch")
        kill "-${signal%:*}" -- "$group$batch"
        code=0
        wait "$batch" || code=$?
        [ "$code" = "${signal#*:}" ] || fail "exit code $code after ${signal%:*}"
        for worker in $workers; do
            wait_until is_over "$worker"
        done
        expect_names out hang.txt
        cmp out/hang.txt old.txt
    done
done

# A batch that is killed takes with it a worker that would never end.
./batch check hang.xml &
batch=$!
wait_until has_workers "$batch" 1
worker=$(workers_of "$batch")
{ kill -KILL "$batch" && wait "$batch"; } 2>/dev/null || true
wait_until is_over "$worker"

# Time that runs out, and a worker that dies: the others go on.
cp old.txt hang.txt
expect 2 "OK ./small.txt: 2 offers, the same as before
ERROR hang.xml: the time that a source may take is over" \
    ./batch convert --jobs 1 --timeout 1 --into . small.xml hang.xml
expect 2 'ERROR hang.xml: the time that a source may take is over
OK small.xml: 2 offers' ./batch check --jobs 1 --timeout 1 hang.xml small.xml
cmp hang.txt old.txt
./batch check hang.xml small.xml >killed.txt &
batch=$!
wait_until has_workers "$batch" 2
kill -KILL "$(workers_of "$batch" | head -n 1)"
code=0
wait "$batch" || code=$?
[ "$code $(<killed.txt)" = '2 ERROR hang.xml: the process that read the source died
OK small.xml: 2 offers' ] || fail "exit code $code: $(<killed.txt)"

# Two runs on one destination.
rm -rf out && mkdir out
./batch convert hang.xml out/goods.txt >first.txt &
first=$!
wait_until is_held out
expect 4 'NOT WRITTEN out/goods.txt: another run is writing this exchange file' \
    ./batch convert small.xml out/goods.txt
./batch convert --jobs 1 --wait 20 small.xml out/goods.txt >second.txt &
second=$!
sleep 0.3
# What ends a batch is nothing to a worker.
kill -TERM "$(workers_of "$first")"
cat old.xml >hang.xml
wait "$first"
wait "$second"
[ "$(<first.txt) $(<second.txt)" = 'OK out/goods.txt: 10000 offers OK out/goods.txt: 2 offers' ] ||
    fail "$(<first.txt) $(<second.txt)"
cmp out/goods.txt small.txt

# What a destination may be.
ln -s out/goods.txt link.txt
expect 0 'OK link.txt: 10000 offers' ./batch convert old.xml link.txt
[ -L link.txt ] || fail "the link is gone"
cmp out/goods.txt old.txt
ln small.xml hard.xml
ln old.txt hard.txt
expect 4 'NOT WRITTEN hard.xml: the destination is the source itself' \
    ./batch convert small.xml hard.xml
expect 4 'NOT WRITTEN hard.txt: the old exchange file has other names, hard links, which would keep the old content' \
    ./batch convert small.xml hard.txt
expect 4 'NOT WRITTEN /dev/null: the destination is no ordinary file' \
    ./batch convert small.xml /dev/null

# An outcome that can't be told, and a file that never ends.
expect 4 'xml2ryk-batch: standard output can'\''t be written' \
    bash -c './batch check small.xml >/dev/full'
expect 4 "OK small.xml: 2 offers
xml2ryk-batch: the log /dev/full can't be written" ./batch check --log /dev/full small.xml
expect 1 "xml2ryk-batch: the log other.xml can't be written" ./batch check --log other.xml small.xml
expect 3 'NOT WHOLE /dev/zero: nothing
  1: this line has bytes that nobody writes into an exchange file' ./batch verify /dev/zero
./batch check --log closed.txt small.xml <&- >&- 2>&-
[ "$(cut -f 2- closed.txt)" = $'small.xml\tOK small.xml: 2 offers' ] || fail "$(<closed.txt)"

# Many small ones.
mkdir many all
for i in {1..2000}; do
    echo "<yml_catalog><offers><offer id=\"$i\"><name>n</name><price>1</price><categoryId>1</categoryId></offer></offers><categories><category id=\"1\">T</category></categories></yml_catalog>" >"many/$i.xml"
done
./batch convert --jobs 2 --json --into all many >many.txt
[ "$(grep -c '"exit":0.*"outcome":"created"' many.txt)" = 2000 ] || fail "not all are created"
awk '/^code:/ { split(FILENAME, parts, /[\/.]/); count += $0 == "code:" parts[2] }
    END { exit count != 2000 }' all/*.txt || fail "not each has the good of its source"

# Fewer workers than are wanted are better than none.
expect 0 '' bash -c 'ulimit -n 40; ./batch check --jobs 40 many >told.txt'
[ "$(wc -l <told.txt)" = 2000 ] || fail "not all are told"

# A signal ends a run that nobody listens to.
mkfifo unread
./batch check --json many >unread &
batch=$!
exec 8<unread
sleep 0.5
kill -TERM "$batch"
wait_until is_over "$batch"
code=0
wait "$batch" || code=$?
exec 8<&-
[ "$code" = 143 ] || fail "exit code $code"

# A limit of the system.
cp small.txt out/goods.txt
(
    ulimit -f 50
    expect 4 'NOT WRITTEN out/goods.txt: the exchange file could not be written whole' \
        ./batch convert new.xml out/goods.txt
)
cmp out/goods.txt small.txt
expect_names out goods.txt

if command -v strace >/dev/null && strace -o trace true 2>/dev/null; then
    strace -f -o trace -e trace=open,openat,creat,openat2 \
        ./batch check --jobs 1 --log log small.xml old.xml many/1.xml >/dev/null
    opened=$(grep -v ENOENT trace | sed -n 's/.*open.*(.*"\(.*\)".*/\1/p' |
        grep -vE '^/(etc|lib|usr|proc|sys|dev)/' | grep -v "^$work/batch\$" | sort -u)
    [ "$opened" = $'log\nmany/1.xml\nold.xml\nsmall.xml' ] || fail "a check opens $opened"
fi

[ "$(id -u)" -eq 0 ] || {
    echo "skipped: what needs root"
    exit 77
}

if unshare --mount true; then
    mkdir disk
    # shellcheck disable=SC2016
    expect 4 'NOT WRITTEN disk/goods.txt: the exchange file could not be written whole
old goods.txt' unshare --mount bash -c '
        mount -t tmpfs -o size=60k tmpfs disk
        echo old >disk/goods.txt
        code=0
        ./batch convert new.xml disk/goods.txt || code=$?
        echo "$(<disk/goods.txt) $(ls -A disk)"
        exit "$code"'
    # shellcheck disable=SC2016
    expect 4 'NOT WRITTEN disk/goods.txt: the old exchange file can'\''t be written: the disk is write-protected' \
        unshare --mount bash -c '
        mount -t tmpfs tmpfs disk
        echo old >disk/goods.txt
        mount -o remount,ro disk
        ./batch convert new.xml disk/goods.txt'
fi

# owner FILE: of whom it is, and its mode.
owner() { stat -c '%u %g %a' "$1"; }
as_other() { setpriv --reuid 1234 --regid 1234 --groups 1235 "$@"; }
denied="can't get the owner, the group and the rights of the old one: there is no right to do so"

# Workers that can't be had. The process of the batch is the only one of that user.
expect 2 'ERROR small.xml: no process could be started to read the source' \
    as_other bash -c 'ulimit -u 1; exec ./batch check --timeout 5 small.xml'

# What may not be read.
mkdir -m 311 dark
cp small.xml dark
install -m 600 small.xml secret.xml
expect 2 'ERROR dark: 1 error
  error: the source can'\''t be read: there is no right to do so
ERROR secret.xml: 1 error
  error: the source can'\''t be read: there is no right to do so' as_other ./batch check dark secret.xml

# The owner of the old file stays.
chown 1234:1235 out/goods.txt
chmod 640 out/goods.txt
expect 0 'OK out/goods.txt: 10000 offers' ./batch convert --keep 1 new.xml out/goods.txt
[ "$(owner out/goods.txt)" = '1234 1235 640' ] || fail "$(owner out/goods.txt)"
[ "$(owner out/goods.txt.1)" = '1234 1235 640' ] || fail "$(owner out/goods.txt.1)"

# Another user can do no more than the system lets him.
expect 4 'NOT WRITTEN out/other.txt: no new file can be created beside the destination: there is no right to do so' \
    as_other ./batch convert new.xml out/other.txt
chown 1234 out
expect 0 'OK out/goods.txt: 2 offers' as_other ./batch convert small.xml out/goods.txt
[ "$(owner out/goods.txt)" = '1234 1235 640' ] || fail "$(owner out/goods.txt)"
expect 0 'OK out/other.txt: 10000 offers' as_other ./batch convert new.xml out/other.txt
chmod 440 out/other.txt
expect 4 'NOT WRITTEN out/other.txt: the old exchange file can'\''t be written: there is no right to do so' \
    as_other ./batch convert small.xml out/other.txt
for owner in 0:1235 1234:0; do
    chown "$owner" out/other.txt
    chmod 660 out/other.txt
    # That is known ahead of any work.
    expect 4 "NOT WRITTEN out/other.txt: the new exchange file $denied" \
        as_other timeout 10 ./batch convert hang.xml out/other.txt
done
cmp out/other.txt new.txt
expect_names out goods.txt goods.txt.1 other.txt
