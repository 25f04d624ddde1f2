#!/bin/sh
# Prints the median time of a packaged-app scan over a generated sandbox catalogue of 300
# packages (33,000 files in their install folders), of the size walks alone, and of GNU du on the
# same folders, with their ratios.
#   bench/winapps/run.sh <build-dir> [runs]
set -eu
build=${1:?usage: run.sh <build-dir> [runs]}
runs=${2:-7}
cmake --build "$build" --target bench_winapps_scan -j2 >/dev/null
exec "$build/bench/winapps/bench_winapps_scan" "$build/bench/winapps/sandbox" "$runs"
