#!/bin/sh
# Prints the median time of the browser-extension scan and of a plain recursive listing of the
# same profile folders, on a generated set of 3 browsers x 4 profiles x 150 extensions.
#   bench/browserext/run.sh <build-dir> [runs]
set -eu
build=${1:?usage: run.sh <build-dir> [runs]}
runs=${2:-9}
cmake --build "$build" --target bench_browserext_scan -j2 >/dev/null
exec "$build/bench/browserext/bench_browserext_scan" "$build/bench/browserext/machine" "$runs"
