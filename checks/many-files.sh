#!/usr/bin/env bash
#
# checks/many-files.sh PROGRAM: with xml2ryk-batch, the blocks of docs/many-files.md that are for sh, as
# they stand there, but for the file of machines: this one is the only one.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
[ -x "$1" ] || refuse "there is no program $1"
install_packages jq parallel
program=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin" "$work/in" "$work/out"
ln -s "$program" "$work/bin/xml2ryk-batch"
export PATH=$work/bin:$PATH LC_ALL=C.UTF-8
cp "$root"/examples/*.xml "$work/in"
cp "$root/examples/offers.xml" "$work/in/goods.xml"
cp "$root/examples/catalogue.xml" "$work/in/мой каталог.xml"
echo '<a>' >"$work/in/broken.xml"
cd "$work"

fail() {
    echo "$*" >&2
    exit 1
}

# block WORDS: the block of sh that has them.
block() {
    awk -v words="$1" '/^```/ { if (index(text, words)) printf "%s", text
            in_sh = /^```sh$/; text = ""; next }
        in_sh { text = text $0 "\n" }' "$root/docs/many-files.md" | sed 's|--sshloginfile ../machines|--sshlogin :|'
}

# run WORDS: that block, in the folder where in and out are; then it has $said something, and $exit_code.
run() {
    block "$1" >steps
    [ -s steps ] || fail "no block of docs/many-files.md has: $1"
    exit_code=0
    said=$(bash ./steps 2>error) || exit_code=$?
}

run $'xml2ryk-batch convert --into out in\n' # two blocks: the folder, and the outcome in sh
grep -qF 'ERROR in/broken.xml: ' <<<"$said" || fail "the broken source is not told: $said"
grep -qF 'at least one exchange file is not new' error || fail "sh does not tell the outcome: $said"
for source in in/*.xml; do
    file=out/$(basename "$source" .xml).txt
    [ "$source" = in/broken.xml ] || [ -s "$file" ] || fail "there is no $file"
done
[ ! -e out/broken.txt ] || fail "the broken source has an exchange file"

run jq
[[ $said == "2 in/broken.xml: the source is no well-formed XML"* && $said != *$'\n'* ]] ||
    fail "jq tells: $said"
run 'verify --source'
[[ $exit_code -eq 0 && $said == "OK out/goods.txt"* ]] || fail "verify says: $said"

run parallel
[ "$exit_code" -eq 1 ] || fail "parallel ends with $exit_code: $(cat error)"
[ "$(jq -r .exit outcome.json | sort | uniq -c | xargs)" = "6 0 1 2" ] || fail "$(cat outcome.json)"
[ "$(awk 'NR > 1 && $7 { print $7, $NF }' jobs.log)" = "2 broken.txt" ] || fail "$(cat jobs.log)"
for file in out/*.txt; do
    cmp "$file" "in/${file#out/}"
done
