#!/usr/bin/env bash
# Builds the benchmarks and prints every figure. Usage: bench.sh [build-dir]
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${1:-${NORVALE_BUILD_DIR:-$root/build-bench}}"
"$root/scripts/setup.sh"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
for runner in "$root"/bench/*/run.sh; do
    echo "== $(basename "$(dirname "$runner")")"
    bash "$runner" "$build"
done
