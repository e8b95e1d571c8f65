#!/usr/bin/env bash
# kill_bookings.sh PROGRAM ROUNDS: kills PROGRAM while it finalizes sessions, ROUNDS times, at moments that differ.
# Each start compares the stocks with the sessions; this fails if ever they differ.
set -eu
program=$1
rounds=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/brewery"

halfway=0
for round in $(seq "$rounds"); do
    mkfifo "$folder/ready"
    "$program" "$folder/brewery/" > "$folder/ready" &
    booker=$!
    word=none
    read -r word < "$folder/ready" || true
    rm "$folder/ready"
    if [ "$word" != ready ]; then
        echo "round $round: stocks and sessions differ"
        exit 1
    fi
    # Every other time at once when files begin to change, which is rare to meet by chance on a busy machine.
    if [ $((round % 2)) = 0 ]; then
        for _ in $(seq 20000); do [ ! -e "$folder/brewery/WlxStock.jnl" ] || break; done
    else
        sleep "0.0$((RANDOM % 90 + 10))"
    fi
    kill -9 "$booker"
    wait "$booker" 2> /dev/null || true
    [ ! -e "$folder/brewery/WlxStock.jnl" ] || halfway=$((halfway + 1))
done
echo "$rounds kills, $halfway of them between two files: every session was booked once or not at all"
[ "$halfway" -gt 0 ]
