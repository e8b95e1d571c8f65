#!/usr/bin/env bash
# kill_saves.sh PROGRAM ROUNDS: kills PROGRAM in the middle of its saves, ROUNDS times, at moments that differ,
# and fails if ever the file is not wholly one of the two contents.
set -eu
program=$1
rounds=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
file=$folder/document.rec

interrupted=0
for round in $(seq "$rounds"); do
    mkfifo "$folder/ready"
    "$program" "$file" > "$folder/ready" &
    saver=$!
    read -r _ < "$folder/ready"
    rm "$folder/ready"
    sleep "0.0$((RANDOM % 90 + 10))"
    kill -9 "$saver"
    wait "$saver" 2> /dev/null || true
    letter=$(head -c 1 "$file")
    size=$(stat -c %s "$file")
    others=$(tr -d "$letter" < "$file" | wc -c)
    if [ "$size" -ne 1000000 ] || [ "$others" -ne 0 ]; then
        echo "round $round: the file is broken ($size bytes, $others of them foreign)"
        exit 1
    fi
    if compgen -G "$folder/.wortlex-*" > /dev/null; then
        interrupted=$((interrupted + 1))
        rm -f "$folder"/.wortlex-*
    fi
done
echo "$rounds kills, $interrupted of them inside a save: the file was whole every time"
[ "$interrupted" -gt 0 ]
