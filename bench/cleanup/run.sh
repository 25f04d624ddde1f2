#!/bin/sh
# Prints the median time of the category scan's folder walk and of GNU du on the same generated
# tree of 200,000 files, their ratio, and whether both count the same bytes.
#   bench/cleanup/run.sh <build-dir> [runs]
set -eu
build=${1:?usage: run.sh <build-dir> [runs]}
runs=${2:-9}
cmake --build "$build" --target bench_cleanup_scan -j2 >/dev/null
exec "$build/bench/cleanup/bench_cleanup_scan" "$build/bench/cleanup/tree" "$runs"
