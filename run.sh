#!/usr/bin/env bash
# Builds Wortlex, makes a brewery folder with sample recipes in ./brewery (nothing in it is ever overwritten) and
# prints the report of a recipe. Arguments go to wortlex-report: ./run.sh --json Recipes/*.rec
set -eu
cd "$(dirname "$0")"
. tools/install.sh
install_missing g++ cmake ninja-build

cmake --preset release > /dev/null
cmake --build --preset release --target make-brewery wortlex-report
build/release/tools/make-brewery data brewery
report=$PWD/build/release/src/wortlex-report
cd brewery
[ $# -gt 0 ] || set -- "Recipes/Ploughman's Best Bitter.rec"
exec "$report" "$@"
