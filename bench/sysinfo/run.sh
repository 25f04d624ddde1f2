#!/usr/bin/env bash
# Prints the cost of one dashboard metrics refresh on the interface thread (median microseconds).
# Usage: run.sh <build-dir> [ticks]
set -euo pipefail
build="${1:?usage: run.sh <build-dir> [ticks]}"
ticks="${2:-2000}"
cmake --build "$build" --target bench-sysinfo-refresh >/dev/null
home="$(mktemp -d)"
trap 'rm -rf "$home"' EXIT
env QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME="$home" XDG_DATA_HOME="$home" NORVALE_SANDBOX="$home/sandbox" \
    "$build/bench/sysinfo/bench-sysinfo-refresh" "$ticks"
