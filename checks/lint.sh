#!/usr/bin/env bash
#
# checks/lint.sh BUILD FILE [OPTION...]: runs clang-tidy, with these options, over a source that BUILD, a
# folder of the tree, has the command for. Where it was built of that, and that was clean before, with all
# that it includes, this ends at once.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 2 2 "${@:1:2}"
build=$1 file=$2
cd "$root"
[ -f "$file" ] || refuse "there is no file $file"
included=$(ninja -C "$build" -t deps | awk -v source="$root/$file" '
    /^[^ ]/ { found = 0; getline; found = $1 == source }
    found { print $1 }')
if [ -z "$included" ]; then
    exec clang-tidy --quiet -p "$build" "${@:3}" "$file"
fi
digest=$({
    clang-tidy --version
    echo "$@"
    cat .clang-tidy CMakeLists.txt ./*/CMakeLists.txt
    cd "$build" && xargs -d '\n' cat <<<"$included"
} | sha256sum)
clean=$XML2RYK_CACHE/lint/${digest%% *}
[ ! -e "$clean" ] || exit 0
clang-tidy --quiet -p "$build" "${@:3}" "$file"
mkdir -p "${clean%/*}"
touch "$clean"
