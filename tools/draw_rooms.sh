#!/usr/bin/env bash
# Draws docs/rooms.svg from the link graph.
set -eu
cd "$(dirname "$0")/.."
. tools/install.sh
install_missing cmake ninja-build g++ graphviz qt6-base-dev qt6-svg-dev libjpeg-dev
cmake --preset release --graphviz=build/rooms.dot > /dev/null
sed '/subgraph clusterLegend/,/^}/d' build/rooms.dot | tred | dot -Tsvg -o docs/rooms.svg
