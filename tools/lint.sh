#!/usr/bin/env bash
# The format of every source file, and clang-tidy over the program and the tools. Needs a configured test build.
set -eu
cd "$(dirname "$0")/.."
sources=$(git ls-files 'src/*.cpp' 'src/*.h' 'tools/*.cpp' 'tools/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h' \
    'fuzz/*.cpp' 'fuzz/*.h')
echo "$sources" | xargs clang-format --dry-run --Werror
echo "The format is in order."
echo "$sources" | grep -E '^(src|tools)/.*\.cpp$' | xargs -P "$(nproc)" -n 3 clang-tidy -p build/test --quiet 2> /dev/null
echo "The lint is in order."
