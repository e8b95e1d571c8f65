#!/usr/bin/env bash
# The format of every source file, and clang-tidy over the program and the tools. Needs a configured test build.
# A room is linted as one text, so that the toolkit's headers are read once for all its files; findings name the text
# in build/lint and the line in it. Where two files of a room use one name for different things, it goes file by file.
set -eu
cd "$(dirname "$0")/.."
sources=$(git ls-files 'src/*.cpp' 'src/*.h' 'tools/*.cpp' 'tools/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h' \
    'fuzz/*.cpp' 'fuzz/*.h')
echo "$sources" | xargs clang-format --dry-run --Werror
echo "The format is in order."

rm -rf build/lint
mkdir -p build/lint
# As the room with the most dependencies is compiled.
flags=$(grep -o '"command": .*frame/windows/main_window.cpp"' build/test/compile_commands.json | head -1 |
    sed -E 's/^"command": "[^ ]+ //; s/ -o .*//; s/ccache //')
singles=$(echo "$sources" | grep -E '^tools/.*\.cpp$')
rooms=()
for folder in $(echo "$sources" | grep -E '^src/.*\.cpp$' | xargs -n 1 dirname | sort -u); do
    files=$(echo "$sources" | grep -E "^$folder/[^/]*\.cpp$" | grep -v '/main\.cpp$' || true)
    [ -n "$files" ] || continue
    room=build/lint/$(echo "$folder" | tr / -).cpp
    for file in $files; do
        echo "// ---- $file"
        cat "$file"
    done > "$room"
    # shellcheck disable=SC2086
    if c++ $flags -w -fsyntax-only "$room" 2> /dev/null; then rooms+=("$room"); else singles="$singles $files"; fi
done
singles="$singles $(echo "$sources" | grep -E '^src/.*/main\.cpp$')"
found=0
# Each file of a room includes for itself, and its names do not hide those of another one.
printf '%s\n' "${rooms[@]}" |
    xargs -P "$(nproc)" -I ROOM clang-tidy --quiet --checks=-readability-duplicate-include ROOM -- $flags -Wno-shadow 2> /dev/null || found=1
echo $singles | xargs -P "$(nproc)" -n 3 clang-tidy -p build/test --quiet 2> /dev/null || found=1
[ $found -eq 0 ] || exit 1
echo "The lint is in order."
