#!/usr/bin/env bash
# Prints Norvale's start-up time next to a minimal Qt Widgets program's.
# Usage: run.sh <build-dir> [runs]
set -euo pipefail
build="${1:?usage: run.sh <build-dir> [runs]}"
runs="${2:-15}"
cmake --build "$build" --target bench-startup-norvale bench-startup-minimal bench-startup-runner >/dev/null
sandbox="$(mktemp -d)"
home="$(mktemp -d)"
trap 'rm -rf "$sandbox" "$home"' EXIT
env QT_QPA_PLATFORM=offscreen NORVALE_SANDBOX="$sandbox" XDG_CONFIG_HOME="$home" XDG_DATA_HOME="$home" \
    "$build/bench/startup/bench-startup-runner" "$runs" \
    "$build/bench/startup/bench-startup-norvale" "$build/bench/startup/bench-startup-minimal"
