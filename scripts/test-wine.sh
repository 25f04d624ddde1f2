#!/usr/bin/env bash
# The Windows lane: cross-compiles the platform layer and its tests with mingw-w64, then runs them
# under Wine in a throw-away prefix inside the build tree (never the user's own ~/.wine).
#   scripts/test-wine.sh [build-root]      builds in <build-root>/wine; default build-root: build
# Needs no display and no standard input. Exits with CTest's status.
set -euo pipefail

started=$(date +%s)
repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
root="${1:-$repo/build}"
mkdir -p "$root"
root="$(cd "$root" && pwd)"
build="$root/wine"
jobs="${NORVALE_JOBS:-2}"

export WINEPREFIX="$build/prefix"
export WINEDEBUG=-all
# Console programs need no display, and Wine must not go looking for one.
unset DISPLAY WAYLAND_DISPLAY
exec </dev/null

log() { echo "[test-wine] $(($(date +%s) - started)) s: $*"; }

stop_wine() {
    # Only the server of this lane's prefix; it takes its helper processes with it.
    wineserver -k >/dev/null 2>&1 || true
}
trap stop_wine EXIT

log "configuring $build"
cmake -S "$repo" -B "$build" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$repo/cmake/mingw-w64.cmake" \
    -DNORVALE_PLATFORM_ONLY=ON >/dev/null

log "building"
cmake --build "$build" -j "$jobs"

# A fresh prefix every run, so no case sees what an earlier run left in the registry.
stop_wine
rm -rf "$WINEPREFIX"
log "creating the Wine prefix"
# Each Wine start otherwise pays for the server and its helpers, which inherit CTest's output pipe
# and keep CTest waiting seconds per test: start a persistent server, then the helpers, with no
# pipe attached. Mono and Gecko are not wanted in a test prefix and would only slow its creation.
mkdir -p "$WINEPREFIX" # the server starts in the prefix folder
wineserver -p >/dev/null 2>&1
WINEDLLOVERRIDES="mscoree,mshtml=" wine cmd /c exit >/dev/null 2>&1
# The service manager starts on first use; let that happen here, not inside a timed case.
wine sc query >/dev/null 2>&1 || true

log "running the tests"
status=0
(cd "$build" && ctest --output-on-failure) || status=$?

log "finished with status $status"
exit "$status"
