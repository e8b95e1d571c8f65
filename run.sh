#!/usr/bin/env bash
# Builds Wortlex, makes a brewery folder with sample recipes in ./brewery (nothing in it is ever overwritten) and
# starts the program there.
#
#     ./run.sh                 opens the main window, without a display makes pictures of it
#     ./run.sh FILE            also opens a recipe
#     ./run.sh --report ...    wortlex-report with these arguments, in ./brewery
set -eu
recipe=${1:-"Recipes/Ploughman's Best Bitter.rec"}
[ ! -e "$recipe" ] || recipe=$(realpath "$recipe") # else it is one of ./brewery
cd "$(dirname "$0")"

# A build that is newer than all that it is made of is used as it is, also where there is no compiler.
release=$PWD/build/release
is_built() { [ -e "$release/made" ]; }
is_current() {
    is_built &&
        [ -z "$(find CMakeLists.txt CMakePresets.json cmake data src tools -newer "$release/made" -print -quit)" ]
}

can_compile() {
    . tools/install.sh
    install_missing g++ cmake ninja-build qt6-base-dev qt6-svg-dev libfontconfig-dev libjpeg-dev &&
        { [ -z "${WAYLAND_DISPLAY:-}" ] || install_missing qt6-wayland; }
}

compile() {
    if is_built; then
        echo "Compiling what has changed in Wortlex ..."
    else
        echo "Compiling Wortlex: about ten minutes the first time. Later starts are immediate."
    fi
    touch build/begun # what changes while it compiles is newer
    cmake --preset release > /dev/null
    cmake --build --preset release --target wortlex wortlex-report make-brewery render-artwork picture-windows \
        has-display brewery
    mv build/begun "$release/made"
}

mkdir -p build
if ! is_current; then
    if can_compile; then
        compile
    elif is_built; then
        echo "It has changed, and there is no compiler: Wortlex starts as it was built last."
    else
        exit 1
    fi
fi >&2
"$release/tools/make-brewery" data brewery
"$release/tools/render-artwork" data/artwork brewery
pictures=$PWD/build/pictures
cd brewery

if [ "${1:-}" = --report ]; then
    exec "$release/src/wortlex-report" "${@:2}"
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    if timeout 10 "$release/tools/has-display"; then
        [ $# -eq 0 ] || set -- "$recipe"
        exec "$release/src/wortlex" "$@"
    fi
    echo "The display ${DISPLAY:-$WAYLAND_DISPLAY} does not answer." >&2
fi
"$release/src/wortlex-report" "$recipe"
QT_QPA_PLATFORM=offscreen timeout 60 "$release/tools/picture-windows" "$pictures" "$recipe"
echo "There is no display. Pictures of the windows: $pictures/main-window.png, $pictures/recipe-window.png"
