#!/usr/bin/env bash
# Prints how fast the program is: its start, installed, warm and cold, beside that of an empty window, one
# recalculation, a load and a save, a hop list of 999 entries, a session's inventory, the recipe window and its report,
# the shelf of 10,000 recipes, the brewer's tools, the water calculator, a mash schedule and its chart, the search in
# the handbook, wortlex-report over 10,000 recipes, each from 25 to 400 lines of malts and hops, and how long everything
# takes to build anew.
set -eu
cd "$(dirname "$0")"
. tools/install.sh
install_missing g++ cmake ninja-build libbenchmark-dev qt6-base-dev qt6-svg-dev libfontconfig-dev libjpeg-dev libxcb1-dev pkg-config xvfb xauth

cmake --preset bench > /dev/null
cmake --build --preset bench
installed=$(mktemp -d)
cmake --install build/bench --prefix "$installed" > /dev/null
(cd "$installed" && timeout 300 xvfb-run -a -s "-screen 0 1280x1024x24" env QT_QPA_PLATFORM=xcb HOME="$installed" \
    XDG_DATA_HOME="$installed/data" "$OLDPWD/build/bench/bench/start_bench" 15 bin/wortlex "$OLDPWD/build/bench/bench/empty_window")
rm -rf "$installed"
build/bench/bench/documents_bench --benchmark_counters_tabular=true
build/bench/bench/lists_bench
build/bench/bench/inventory_bench
build/bench/bench/recipe_window_bench
build/bench/bench/session_pages_bench
build/bench/bench/reports_bench
build/bench/bench/shelf_bench
build/bench/bench/tools_bench
build/bench/bench/water_bench
build/bench/bench/mash_bench
build/bench/bench/handbook_bench

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
build/bench/tools/make-brewery data "$folder"
cd "$folder"
speed_of() {
    echo "$@" | awk '{ printf "%d files in %.2f s, %.0f files a second\n", $1, $3 - $2, $1 / ($3 - $2) }'
}
for lines in 25 100 400; do
    count=$((lines == 400 ? 2000 : 10000))
    mkdir "many_$lines"
    "$OLDPWD/build/bench/bench/write_recipe" "$lines" "many_$lines/recipe.rec"
    seq "$count" | sed "s|.*|many_$lines/&.rec|" | xargs -n 1000 sh -c 'for f; do cp "$0" "$f"; done' "many_$lines/recipe.rec"
    rm "many_$lines/recipe.rec"
    started=$(date +%s.%N)
    find "many_$lines" -name '*.rec' -print0 | xargs -0 -n "$count" "$OLDPWD/build/bench/src/wortlex-report" --json > figures.json
    ended=$(date +%s.%N)
    [ "$(wc -l < figures.json)" -eq "$count" ]
    echo "wortlex-report --json, $lines malts and hops: $(speed_of "$count" "$started" "$ended")"
    started=$(date +%s.%N)
    find "many_$lines" -name '*.rec' -print0 | xargs -0 -n "$count" "$OLDPWD/build/bench/src/wortlex-report" --text > reports.txt
    ended=$(date +%s.%N)
    [ "$(grep -c 'A Wortlex Recipe Report' reports.txt)" -eq "$count" ]
    echo "wortlex-report --text, $lines malts and hops: $(speed_of "$count" "$started" "$ended")"
    rm -rf "many_$lines"
done

cd "$OLDPWD"
for preset in release test; do
    rm -rf build/timed
    cmake --preset "$preset" -B build/timed > /dev/null
    started=$(date +%s)
    cmake --build build/timed > /dev/null
    echo "The preset $preset built anew on $(nproc) cores: $(($(date +%s) - started)) s"
done
rm -rf build/timed
