#!/usr/bin/env bash
# fuzz.sh [MINUTES] [TARGET ...]: runs each fuzz target (or those named) for MINUTES, 5 if not told, two at a time. A
# finding stops its target and is kept in build/fuzz/findings.
set -eu
cd "$(dirname "$0")/.."
. tools/install.sh
install_missing clang cmake ninja-build qt6-base-dev qt6-svg-dev libjpeg-dev

minutes=${1:-5}
[ $# -eq 0 ] || shift
cmake --preset fuzz > /dev/null
cmake --build --preset fuzz
[ -d build/fuzz/brewery ] || build/fuzz/tools/make-brewery data build/fuzz/brewery
[ $# -gt 0 ] || set -- recipe session settings schedule color_table database import sort_file jpeg time_line calculator_state joint_save water_analysis shipped_names

# The first entries of a database behind the bytes of HEAD.
seed_entries() {
    printf "$2"
    tail -c +5 "build/fuzz/brewery/$1" | head -c 20000
}

# A transfer file for each database, headed by its number and three answers.
seed_import() {
    number=0
    for database in STYLES.DAT MALT.DAT HOPS.DAT YEAST.DAT WATER.DAT EXTRA.DAT; do
        seed_entries "$database" "\\$number\\0\\2\\1" > "$1/$database"
        number=$((number + 1))
    done
}

run() {
    target=$1
    corpus=build/fuzz/corpus/$target
    mkdir -p "$corpus" build/fuzz/findings build/fuzz/logs
    case $target in
    recipe) cp build/fuzz/brewery/Recipes/*.rec "$corpus" ;;
    session) cp build/fuzz/brewery/Sessions/*.brw "$corpus" ;;
    settings) cp build/fuzz/brewery/WlxMSys.DAT "$corpus" ;;
    color_table) cp build/fuzz/brewery/kv_lovrgb.ldt "$corpus" ;;
    shipped_names) cp build/fuzz/brewery/WlxShipped.txt "$corpus" ;;
    database) cp build/fuzz/brewery/WATER.DAT "$corpus" ;;
    import) seed_import "$corpus" ;;
    jpeg) printf '\1\20\20' > "$corpus/picture" ;;
    time_line) printf '\1\0\0\0\1\2\3\4mash in' > "$corpus/day" ;;
    calculator_state) printf '\0\0\240@ff\206?\0\0\200?<\0\0\0\0\0\240@\0\0\200@<\0\0\0\1' > "$corpus/boil" ;;
    joint_save) printf 'Wortlex joint save 1\n\1\0\0\0\1\0\0\0a\1\0\0\0b' > "$corpus/journal" ;;
    water_analysis) head -c 2713 build/fuzz/brewery/WATER.DAT > "$corpus/waters" ;;
    sort_file) seed_entries HOPS.DAT '\0\1\0\1\0\0\1' > "$corpus/hops" ;;
    esac
    if build/fuzz/fuzz/"$target"_fuzz "$corpus" -max_total_time=$((minutes * 60)) -max_len=1500000 -rss_limit_mb=4096 \
        -artifact_prefix="build/fuzz/findings/$target-" > "build/fuzz/logs/$target" 2>&1; then
        echo "$target: no finding in $minutes minutes; $(grep -E '^Done' "build/fuzz/logs/$target")"
    else
        echo "$target: a finding, see build/fuzz/logs/$target"
        return 1
    fi
}
export -f run seed_import seed_entries
export minutes
printf '%s\n' "$@" | xargs -P 2 -I TARGET bash -c 'run TARGET'
