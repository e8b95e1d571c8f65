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
. tools/install.sh
install_missing g++ cmake ninja-build qt6-base-dev qt6-svg-dev libjpeg-dev
[ -z "${WAYLAND_DISPLAY:-}" ] || install_missing qt6-wayland

cmake --preset release > /dev/null
cmake --build --preset release --target wortlex wortlex-report make-brewery render-artwork picture-windows has-display
build/release/tools/make-brewery data brewery
build/release/tools/render-artwork data/artwork brewery
programs=$PWD/build/release
pictures=$PWD/build/pictures
cd brewery

if [ "${1:-}" = --report ]; then
    exec "$programs/src/wortlex-report" "${@:2}"
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    if timeout 10 "$programs/tools/has-display"; then
        [ $# -eq 0 ] || set -- "$recipe"
        exec "$programs/src/wortlex" "$@"
    fi
    echo "The display ${DISPLAY:-$WAYLAND_DISPLAY} does not answer." >&2
fi
"$programs/src/wortlex-report" "$recipe"
QT_QPA_PLATFORM=offscreen timeout 60 "$programs/tools/picture-windows" "$pictures" "$recipe"
echo "There is no display. Pictures of the windows: $pictures/main-window.png, $pictures/recipe-window.png"
