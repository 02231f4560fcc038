#!/usr/bin/env bash
#
# checks/repeatable-packages.sh: makes the packages of the last commit once more, in a clone at another
# path, by somebody with other settings. They must be those of build-packages/, byte for byte.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 0 0 "$@"
cd "$root"
XML2RYK_QT=$(sed -n 's/^CMAKE_PREFIX_PATH:.*=//p' build-windows/CMakeCache.txt)
export XML2RYK_QT
(cd build-packages && sha256sum --check --quiet SHA256SUMS)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
say "making the packages once more"
git clone --quiet . "$work/a clone"
(
    umask 077
    TZ=Asia/Vladivostok LC_ALL=C "$work/a clone/scripts/package" --untested
) >"$work/log" 2>&1 || { tail -n 20 "$work/log" >&2 && give_up "the packages could not be made"; }
diff build-packages/SHA256SUMS "$work/a clone/build-packages/SHA256SUMS"
