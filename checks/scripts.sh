#!/usr/bin/env bash
#
# checks/scripts.sh: the manners of the scripts, tried in a copy of them that has nothing to build, on
# a machine that seems to lack every package.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/tree" "$work/bin"
cp -R --parents .ci scripts checks tests/*.sh windows/own.sh "$work/tree"
cd "$work/tree"
export XML2RYK_CACHE=$work/tree/cache CALLS=$work/calls PATH=$work/bin:$PATH
: >"$CALLS"
for tool in dpkg-query sudo apt-get apt-cache; do
    echo '#!/bin/sh' >"$work/bin/$tool"
done
echo 'exit 1' >>"$work/bin/dpkg-query"
echo 'exec "$@"' >>"$work/bin/sudo"
# A source of packages is broken, and the first installation finds the lock taken.
cat >>"$work/bin/apt-get" <<'END'
echo "$*" >>"$CALLS"
case $2$(grep -c install "$CALLS") in
update*) echo 'E: a broken source' ;;
install1) echo 'E: Could not get lock' ;;
*) exit 0 ;;
esac
exit 100
END
# It has more to say than anybody waits for.
cat >>"$work/bin/apt-cache" <<'END'
echo '  Candidate: 1.0'
sleep 0.1
exec echo '  Version table:'
END
chmod +x "$work/bin"/*

fail() {
    echo "$*; its standard error:"
    cat "$work/error"
    exit 1
}

# ends_with CODE COMMAND...
ends_with() {
    local wanted=$1 code=0
    shift
    "$@" </dev/null >"$work/output" 2>"$work/error" || code=$?
    [ "$code" -eq "$wanted" ] || fail "$* ends with $code instead of $wanted"
}

find . >"$work/before"
touch occupied
for script in .ci/run scripts/{catalogues,fuzz,icons,package,release,test,window,windows} tests/{key-on-windows,run-conversion}.sh \
    checks/{catalogues,components,desktop,from-zip,hardened,host,in-fresh-root,in-next-debian,installer,links,many-files,options,repeatable-packages}.sh \
    checks/units.sh; do
    ends_with 0 "$script" --help
    grep -q "^$script" "$work/output" || fail "$script --help does not tell how it is called"
    ends_with 64 "$script" --nonsense
    ends_with 64 "$script" a b c
done
ends_with 64 scripts/fuzz nonsense
ends_with 69 scripts/test nonsense
XML2RYK_QT=$work ends_with 69 scripts/windows
XML2RYK_CACHE=$work/tree/occupied ends_with 69 scripts/windows
rm occupied
find . | diff "$work/before" - || fail "refused, and yet done"
touch build
ends_with 69 scripts/convert a b
[ ! -s "$CALLS" ] || fail "packages were installed for nothing"

rm build
# A release is what its tag has.
mkdir -p "$work/release/scripts"
cp scripts/{release,setup.sh} "$work/release/scripts"
(
    cd "$work/release"
    export GIT_CONFIG_GLOBAL=/dev/null GIT_{AUTHOR,COMMITTER}_{NAME,EMAIL}=nobody
    git init --quiet
    # keep HEAD MADE TAG: a commit of version 1.2 with that head of the changes, whose package is MADE.
    keep() {
        echo "    VERSION 1.2" >CMakeLists.txt
        tee CHANGELOG.md CHANGELOG.ru.md <<<"## $1" >/dev/null
        # shellcheck disable=SC2016
        printf '#!/bin/sh\ncd "${0%%%%/scripts*}" && mkdir build-packages && echo "%s" >build-packages/made\n' "$2" >scripts/package
        chmod +x scripts/package
        git add . && git commit --quiet --message "$1" && git tag --force "$3" >/dev/null
    }
    keep 1.2 "of another tag" v1.3
    ends_with 64 scripts/release v1.3
    keep "1.2 (not released)" "not headed" v1.2
    ends_with 64 scripts/release v1.2
    ends_with 64 scripts/release v1.1
    [ ! -e build-packages ] || fail "a release was made of the wrong tag"
    keep 1.2 "of the tag" v1.2
    keep 1.3 "of what came later" later
    git branch v1.2
    # Root may make one in a clone of somebody else.
    [ "$(id -u)" -ne 0 ] || chown -R nobody .
    ends_with 0 scripts/release v1.2
    grep -qx "of the tag" build-packages/made || fail "scripts/release makes something else than the tag"
    [ "$(git -c safe.directory="$PWD" status --porcelain)" = "?? build-packages/" ] ||
        fail "scripts/release leaves something behind"
)

ends_with 69 scripts/convert a b
[ "$(cut -d ' ' -f 2 "$CALLS" | xargs)" = "update install install" ] || fail "not installed"
! grep -q qt6 "$CALLS" || fail "Qt 6 is installed where Qt 5 is to be had"
for said in "a broken source" waiting "can't configure"; do
    grep -q "^xml2ryk: .*$said" "$work/error" || fail "scripts/convert does not tell: $said"
done
