#!/usr/bin/env bash
# Start-up under Wine: the Windows build's Norvale probe against the minimal Qt Widgets probe
# built with the same static Qt, each to its first frame drawn by Qt's Windows platform plugin.
# Usage: run-wine.sh <windows-build-dir> [runs]
# Needs WINEPREFIX (with the demo data, for a real first page) and DISPLAY set, as
# scripts/test-winapp.sh does; a running wineserver keeps Wine's own start-up out of the noise.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
build="${1:?usage: run-wine.sh <windows-build-dir> [runs]}"
runs="${2:-7}"
: "${WINEPREFIX:?set WINEPREFIX (scripts/test-winapp.sh does)}" "${DISPLAY:?set DISPLAY}"
cmake --build "$build" --target bench-startup-norvale bench-startup-minimal >/dev/null

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
# The runner is a program of the build machine; it starts each probe through Wine. The clock it
# passes is the same one the probes read through Wine, so the times are comparable.
c++ -std=c++17 -O2 -o "$work/runner" "$here/runner.cpp"
for probe in norvale minimal; do
    printf '#!/bin/sh\nexec wine "%s"\n' "$build/bench-startup-$probe.exe" >"$work/$probe"
    chmod +x "$work/$probe"
done
NORVALE_BENCH_WHERE="under Wine, Windows platform plugin" "$work/runner" "$runs" "$work/norvale" "$work/minimal"
