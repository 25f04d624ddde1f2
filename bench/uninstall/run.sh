#!/bin/sh
# Prints the median time of an inventory refresh over 2,000 generated uninstall entries in a
# sandbox, and the share of it spent finding each program's main executable.
#   bench/uninstall/run.sh <build-dir> [runs]
set -eu
build=${1:?usage: run.sh <build-dir> [runs]}
runs=${2:-9}
cmake --build "$build" --target bench_uninstall_refresh -j2 >/dev/null
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
QT_QPA_PLATFORM=offscreen XDG_DATA_HOME="$home" "$build/bench/uninstall/bench_uninstall_refresh" "$runs"
