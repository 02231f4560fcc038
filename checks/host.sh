#!/usr/bin/env bash
#
# checks/host.sh BUILD: the program of docs/host.md, built with what the folder BUILD installs, also for
# Windows: it must put on the clipboard what that page says, in both languages. And each header must be whole
# by itself, each library by its target, and the CMake package must give nothing but what was asked for, and
# refuse what it does not have.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"
# shellcheck source-path=SCRIPTDIR source=../windows/own.sh
. "$root/windows/own.sh"

shopt -s extglob nullglob
expect_arguments 1 1 "$@"
[ -f "$1/CMakeCache.txt" ] || refuse "there is no build in $1"
install_packages "${build_packages[@]}" xvfb xclip
version=$(version_in <"$root/CMakeLists.txt")
work=$(mktemp -d)
trap '[ ! -d "$work/windows" ] || end_windows "$work/windows"; rm -rf "$work"' EXIT
export LC_ALL=C.UTF-8
pages=("$root"/docs/host{,.ru}.md)

fail() {
    echo "$*" >&2
    exit 1
}

# block LANGUAGE PAGE: the first block of the page in it.
block() {
    awk -v begin="\`\`\`$1" '$0 == begin { inside = 1; next } /^```$/ { if (inside) exit } inside' "$2" >"$work/block"
    [ -s "$work/block" ] || fail "$2 has no block of $1"
    cat "$work/block"
}
for page in "${pages[@]}"; do
    for part in cmake/CMakeLists.txt cpp/main.cpp; do
        block "${part%/*}" "$page" | while IFS= read -r line; do
            grep -qF -- "$line" "$root/docs/host/${part#*/}" ||
                fail "docs/host/${part#*/} does not have, of $page: $line"
        done
    done
    block text "$page" | sed 's/⇥/\t/g' >"$work/${page##*/}.expected"
done

# cached NAME: what the build has for it.
cached() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }
build=$1
installed=$work/installed
options=(-DCMAKE_PREFIX_PATH="$installed")
source=$root/examples/shop-windows-1251.xml
run=()
export ON_WINDOWS=
if [ -n "$(cached CMAKE_TOOLCHAIN_FILE)" ]; then
    cmake --install "$build" --prefix "$installed" --component libxml2ryk-dev >/dev/null
    options=(-DCMAKE_PREFIX_PATH="$installed;$(cached CMAKE_PREFIX_PATH)" -DCMAKE_BUILD_TYPE=Release
        -DCMAKE_TOOLCHAIN_FILE="$root/windows/toolchain.cmake")
    mkdir "$work/windows"
    own_windows "$work/windows"
    ln -s / "$work/windows/wine/dosdevices/z:"
    source=Z:$source
    run=(env -u QT_QPA_PLATFORM "$root/windows/run")
    ON_WINDOWS=yes
else
    cmake --install "$build" --prefix "$installed" >/dev/null
fi

cp -R "$root/docs/host" "$work/host"
mkdir "$work/parts"
(cd "$installed/include/xml2ryk" && find . -name '*.h' -printf '%P\n') | while IFS= read -r header; do
    echo "#include \"$header\"" >"$work/parts/${header//\//-}.cpp"
done
[ "$(find "$work/parts" -name '*.h.cpp' | wc -l)" -gt 5 ] || fail "there are no headers"
cat >"$work/parts/survey.cpp" <<'END'
#include "survey/survey.h"

int main()
{
    return survey::check({QStringLiteral("nothing")}).findings.size() == 1 ? 0 : 1;
}
END
cat >"$work/parts/reader.cpp" <<'END'
#include "reader/commxmlreader.h"

int main()
{
    return CommXmlReader().loadSource(QStringLiteral("nothing")) ? 1 : 0;
}
END
cat >"$work/parts/CMakeLists.txt" <<END
cmake_minimum_required(VERSION 3.25)
project(parts LANGUAGES CXX)
find_package(xml2ryk REQUIRED COMPONENTS reader)
if(TARGET xml2ryk::survey OR NOT xml2ryk_reader_FOUND)
    message(FATAL_ERROR "who asks for the reader does not get that alone")
endif()
find_package(xml2ryk ${version%.*} REQUIRED COMPONENTS survey)
if(TARGET xml2ryk::clipboard OR TARGET Qt5::Gui OR TARGET Qt6::Gui)
    message(FATAL_ERROR "who needs no clipboard gets it, or its library")
endif()
file(GLOB headers *.h.cpp)
add_library(headers OBJECT \${headers})
foreach(part IN ITEMS reader survey)
    add_executable(\${part} \${part}.cpp)
    target_link_libraries(\${part} PRIVATE xml2ryk::\${part})
endforeach()
target_link_libraries(headers PRIVATE xml2ryk::survey)
foreach(refused IN ITEMS "0.0" "99.0" "COMPONENTS;nonsense")
    find_package(xml2ryk \${refused} QUIET)
    if(xml2ryk_FOUND)
        message(FATAL_ERROR "\${refused} is found")
    endif()
endforeach()
find_package(xml2ryk REQUIRED COMPONENTS clipboard)
if(NOT TARGET Qt5::Gui AND NOT TARGET Qt6::Gui)
    message(FATAL_ERROR "the clipboard is found without its library")
endif()
END
for project in host parts; do
    {
        cmake -S "$work/$project" -B "$work/$project/build" -G Ninja "${options[@]}" &&
            cmake --build "$work/$project/build"
    } >"$work/log" 2>&1 || { cat "$work/log" >&2 && fail "$project can't be built with what is installed"; }
done
for part in reader survey; do
    "${run[@]}" "$(echo "$work/parts/build/$part"?(.exe))" || fail "the $part misses no source"
done

# What is copied must be there for others as long as the program runs; it ends when one of them copies. Wine
# can't be relied on for either, so there it is what the program itself finds.
# shellcheck disable=SC2016
"$root/tests/on-x-server.sh" timeout 60 bash -eu -c '
    "$@" >"$0/printed" 2>"$0/error" &
    for try in $(seq 300); do
        [ ! -s "$0/printed" ] || break
        sleep 0.1
    done
    [ -z "$ON_WINDOWS" ] || exit 0
    xclip -out -selection clipboard >"$0/pasted"
    xclip -in -selection clipboard <<<other 2>/dev/null
    wait "$!"' "$work" "${run[@]}" "$(echo "$work"/host/build/copy-rows?(.exe))" "$source" ||
    fail "the program of docs/host fails: $(cat "$work/error")"
if [ -n "$ON_WINDOWS" ]; then
    iconv -f CP1251 "$work/printed" | tr -d '\r' >"$work/pasted"
else
    cmp "$work/printed" "$work/pasted"
fi
for page in "${pages[@]}"; do
    diff "$work/${page##*/}.expected" "$work/pasted" || fail "the rows are others than those that $page shows"
done
