#!/usr/bin/env bash
#
# checks/options.sh PROGRAM: whether the manual page and the completions of xml2ryk-batch have the options
# that its help tells, and the losses that --accept takes.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
[ -x "$1" ] || refuse "there is no program $1"
cd "$root"
export LC_ALL=C.UTF-8

fail() {
    echo "$*" >&2
    exit 1
}

# shellcheck source=packaging/xml2ryk-batch.bash
. packaging/xml2ryk-batch.bash
compopt() { :; }
# complete_words WORD...: what comes for the last one.
complete_words() {
    COMP_WORDS=(xml2ryk-batch "$@") COMP_CWORD=$#
    _xml2ryk_batch
    printf '%s\n' "${COMPREPLY[@]}" | sort
}

names() { grep -oE -- '^  +--[a-z-]+' | tr -d ' ' | sort; }
for command in check convert verify; do
    told=$("$1" "$command" --help | names)
    [ -n "$told" ] || fail "the help of $command tells no options"
    diff <(echo "$told") <(complete_words "$command" -- | grep -vx -e --help) ||
        fail "bash completes other options of $command than there are"
done
diff <({ "$1" --help | names; printf '%s\n' check convert verify; } | sort) <(complete_words "") ||
    fail "bash completes other commands than there are"

losses=$(sed -n 's/.*"\([a-z-]*\)", Level::Loss.*/\1/p' survey/finding.cpp | sort)
diff <(echo "$losses") <(complete_words check --accept "") || fail "bash completes other losses than there are"
grep -qF "($(sed -n 's/.*"\([a-z-]*\)", Level::Loss.*/\1/p' survey/finding.cpp | xargs))" packaging/completion.zsh ||
    fail "zsh completes other losses than there are"

# The words of a file, each only once.
words_of() { grep -oE -- "$1" "$2" | tr -d "\\\\*'[" | sort -u; }
all=$(for command in check convert verify ""; do "$1" ${command:+"$command"} --help | names; done | sort -u)
diff <(echo "$all") <(words_of '\*\*\\--[a-z-]+' docs/xml2ryk-batch.1.md) ||
    fail "the manual page tells other options than there are"
diff <({ echo "$all"; echo --pause; } | sort) <(words_of "--[a-z-]+\[" packaging/completion.zsh) ||
    fail "zsh completes other options than there are"
diff <(sed -n 's/.*{Kind::[A-Za-z]*, "\([a-z-]*\)", Level.*/\1/p' survey/finding.cpp | sort) \
    <(sed -n '/^# FINDINGS/,/^# JSON/p' docs/xml2ryk-batch.1.md | grep -oE '\*\*[a-z-]+\*\*' | tr -d '*' | sort) ||
    fail "the manual page tells other findings than there are"
