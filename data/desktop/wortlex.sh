#!/bin/sh
# Starts Wortlex in the brewer's own folder, and makes that folder of the installed one at the first start.
# Nothing that is there is ever overwritten, and what the brewer deletes after the first start stays away.
set -eu

fail() {
    echo "wortlex: $1" >&2
    # Started from a menu, nobody would see that line.
    [ -t 2 ] || ! command -v notify-send > /dev/null || notify-send Wortlex "$1" || true
    exit 1
}

# A file arrives whole or not at all, and one that is put there meanwhile stays.
copy_file() {
    { cp "$1" "$part" && chmod u+w "$part" && mv -n "$part" "$2"; } || [ -e "$2" ]
}

# copy_missing FROM TO
copy_missing() (
    mkdir -p "$2" && [ -d "$1" ] || exit 1
    for each in "$1"/*; do
        target=$2/${each##*/}
        if [ -d "$each" ]; then
            copy_missing "$each" "$target" || exit 1
        elif [ -f "$each" ] && ! [ -e "$target" ] && ! [ -L "$target" ]; then
            copy_file "$each" "$target" || exit 1
        fi
    done
)

make_folder() {
    [ ! -e "$folder/.wortlex-complete" ] || return 0
    mkdir -p "$folder" || fail "The brewery folder $folder cannot be made."
    part=$folder/.wortlex-copy.$$
    trap 'rm -f "$part"' EXIT
    trap 'exit 1' HUP INT TERM
    copy_missing "$installed" "$folder" && : > "$folder/.wortlex-complete" ||
        fail "The brewery folder $folder cannot be filled."
    rm -f "$folder"/.wortlex-copy.* # also of a start that was killed
    trap - EXIT HUP INT TERM
}

self=$(readlink -f "$0")
prefix=${self%/*/*}
installed=$prefix/share/wortlex/brewery

case ${XDG_DATA_HOME:-} in
/*) folder=$XDG_DATA_HOME/wortlex ;;
*) folder=${HOME:?wortlex: there is no home folder to keep the brewery in}/.local/share/wortlex ;;
esac
make_folder

# The program works in that folder: names of files that mean the present one are made whole.
count=$#
while [ "$count" -gt 0 ]; do
    case $1 in
    /* | -*) set -- "$@" "$1" ;;
    *) set -- "$@" "$PWD/$1" ;;
    esac
    shift
    count=$((count - 1))
done
cd "$folder" || fail "The brewery folder $folder cannot be entered."
exec "$prefix/libexec/wortlex/wortlex" "$@"
