#!/bin/sh
# Prints the median times of force removal's scan and of its removal of a generated install
# folder (100,000 files in 1,000 folders, 200 executables) in a sandbox, beside GNU du -sb and
# rm -rf on an identical tree, with their ratios.
#   bench/forceremove/run.sh <build-dir> [runs]
set -eu
build=${1:?usage: run.sh <build-dir> [runs]}
runs=${2:-3}
cmake --build "$build" --target bench_forceremove -j2 >/dev/null
exec "$build/bench/forceremove/bench_forceremove" "$build/bench/forceremove/work" "$runs"
