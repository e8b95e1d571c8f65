#!/usr/bin/env bash
# The format of every source file; every file of the program compiled by itself, so that each header brings what it
# needs; and clang-tidy over the program and the tools. Floors that lie together are linted as one text, so that the
# headers of the library and the toolkit are read once for all their files; where two rooms use one name for different
# things, each goes by itself.
set -eu
cd "$(dirname "$0")/.."
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
echo "The format is in order."

cmake --preset dev > /dev/null
flags_of() { # the compile command of a source, without its output
    grep -o "\"command\": \".*/$2\"" "build/$1/compile_commands.json" | head -1 | sed -E 's/^"command": "//; s/ -o .*//; s/ccache //'
}
# A header that no source includes before all others goes by itself too.
first=$(git ls-files 'src/*.cpp' | xargs grep -h -m 1 '^#include' | sed -n 's/.*"\(.*\)"/src\/\1/p')
alone=$(git ls-files 'src/*.h' | grep -vxF "$first")
stand() { # the files told, with the flags of this one and what else follows
    source=$1
    shift
    # shellcheck disable=SC2046
    xargs -P "$(nproc)" -n 1 $(flags_of dev "$source") -w -fsyntax-only "$@" -x c++ ||
        { echo "A file does not stand by itself."; exit 1; }
}
with_toolkit='^(src/desktop|src/windows|bench)/'
all() { # with what is built on demand alone, so that it still stands on the day it is asked for
    git ls-files 'src/*.cpp' 'bench/*.cpp' 'fuzz/*.cpp'
    echo "$alone"
}
cmake --build --preset dev --target src/CMakeFiles/desktop.dir/cmake_pch.hxx.gch > /dev/null &
toolkit=$!
# The headers of the library that most files use are read once.
standard=$PWD/build/dev/standard.h
git ls-files 'src/*.h' 'src/*.cpp' | xargs grep -ho '^#include <[a-z_0-9]*>' | sort | uniq -c |
    awk '$1 >= 15 { print $2, $3 }' > "$standard"
# shellcheck disable=SC2046
$(flags_of dev src/base/files.cpp) -w -x c++-header "$standard"
all | grep -vE "$with_toolkit" | stand src/base/files.cpp -include "$standard"
wait $toolkit
all | grep -E "$with_toolkit" | stand src/desktop/captions.cpp
echo "Every file stands by itself."

cmake --preset quick > /dev/null
rm -rf build/lint
mkdir -p build/lint
floors=("base jpeg settings measures records brewing" "forms page handbook charts databases mash water calculators"
    "documents reports" "program companion" "desktop windows")
texts=$(find build/quick/tools -name 'unity_*.cxx')
for floor in "${floors[@]}"; do
    pattern=$(echo "$floor" | tr ' ' '|')
    # Rooms in the order in which they are built, the last one with the flags of all.
    rooms=$(sed -nE "s/^(($pattern)(\/[a-z_]+)?)( .*)?$/\1/p" build/quick/rooms.txt | tr / _)
    text=build/lint/$(echo "$floor" | tr ' ' '_').cpp
    for room in $rooms; do
        echo "#include \"$PWD/build/quick/src/CMakeFiles/$room.dir/Unity/unity_0_cxx.cxx\""
    done > "$text"
    flags=$(flags_of quick "src/CMakeFiles/$room.dir/Unity/unity_0_cxx.cxx")
    # shellcheck disable=SC2086
    if $flags -w -fsyntax-only "$text" 2> "$text.log"; then
        grouped="${grouped:-} $text:$room"
    else
        echo "Linted room by room ($(grep -m 1 error "$text.log")): $floor"
        for room in $rooms; do texts="$texts build/quick/src/CMakeFiles/$room.dir/Unity/unity_0_cxx.cxx"; done
    fi
done

# A whole floor is not one text to the compiler: its rooms may hide each other's names.
checks=-readability-duplicate-include,-bugprone-suspicious-include
tidy() { clang-tidy --quiet --checks="$checks" "$@" 2> /dev/null; }
export -f tidy flags_of
export checks
{
    for pair in ${grouped:-}; do
        unity=src/CMakeFiles/${pair#*:}.dir/Unity/unity_0_cxx.cxx
        echo "tidy ${pair%:*} -- $(flags_of quick "$unity" | sed 's/^[^ ]* //') -Wno-shadow"
    done
    for text in $texts; do echo "tidy -p build/quick $text"; done
} | xargs -P "$(nproc)" -d '\n' -I COMMAND bash -c COMMAND || { echo "The lint has findings."; exit 1; }
echo "The lint is in order."
