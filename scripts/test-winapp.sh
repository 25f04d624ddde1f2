#!/usr/bin/env bash
# The Windows-app lane: the whole program built for Windows (mingw-w64 and the static Qt of
# scripts/build-qt-windows.sh), then run under Wine in a throw-away prefix on an Xvfb display:
#   1. the feature suites against the Win32 platform (CTest names winapp_<suite>), with every
#      skipped case counted and listed with its reason;
#   2. the demo data installed into the prefix the Windows way, then every page and dialog of
#      Norvale drawn by Qt's Windows platform plugin into <build-root>/screenshots/windows/;
#   3. the start-up benchmark: Norvale.exe against a minimal Qt Widgets program.
#   scripts/test-winapp.sh [build-root]    builds in <build-root>/winapp; default build-root: build
# Exits non-zero if the build, a suite or the screenshots fail.
set -euo pipefail

started=$SECONDS
repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
root="${1:-$repo/build}"
mkdir -p "$root"
root="$(cd "$root" && pwd)"
build="$root/winapp"
jobs="${NORVALE_JOBS:-$(nproc 2>/dev/null || echo 2)}"

log() { echo "[test-winapp] $((SECONDS - started)) s: $*"; }

log "Qt for Windows"
"$repo/scripts/build-qt-windows.sh"
qt="$("$repo/scripts/build-qt-windows.sh" --print-prefix)"

log "configuring $build"
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S "$repo" -B "$build" -G Ninja "${launcher[@]}" \
    -DCMAKE_TOOLCHAIN_FILE="$repo/cmake/mingw-w64.cmake" \
    -DNORVALE_QT_PREFIX="$qt" \
    -DCMAKE_BUILD_TYPE=Release >/dev/null
log "building"
cmake --build "$build" -j "$jobs"

export WINEPREFIX="$build/prefix"
export WINEDEBUG=-all
unset WAYLAND_DISPLAY
exec </dev/null

xvfb_pid=""
stop() {
    # Only this lane's server (it takes its helper processes with it) and display.
    wineserver -k >/dev/null 2>&1 || true
    [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null || true
}
trap stop EXIT

# Qt's Windows platform plugin draws through Wine's X11 driver: a display of the lane's own.
display_file="$(mktemp)"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$display_file" >/dev/null 2>&1 &
xvfb_pid=$!
for _ in $(seq 1 100); do
    [ -s "$display_file" ] && break
    sleep 0.1
done
export DISPLAY=":$(cat "$display_file")"
rm -f "$display_file"
[ "$DISPLAY" != ":" ] || { log "Xvfb did not start"; exit 1; }

# A fresh prefix. Start the server and its helpers with no pipe attached, or every Wine start
# under CTest waits for them (see scripts/test-wine.sh).
fresh_prefix() {
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w >/dev/null 2>&1 || true
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    log "creating the Wine prefix"
    wineserver -p >/dev/null 2>&1
    WINEDLLOVERRIDES="mscoree,mshtml=" wine cmd /c exit >/dev/null 2>&1
}
fresh_prefix

# --- 1. the suites ----------------------------------------------------------------------------
log "running the suites under Wine"
reports="$build/winapp-reports"
rm -f "$reports"/*.txt
suites_status=0
(cd "$build" && ctest -R '^winapp_' --output-on-failure) || suites_status=$?

passed=0 failed=0 skipped=0
for report in "$reports"/*.txt; do
    [ -e "$report" ] || continue
    # A suite that crashed has no totals line; CTest counts it as failed.
    read -r p f s < <(sed -n 's/^Totals: \([0-9]*\) passed, \([0-9]*\) failed, \([0-9]*\) skipped.*/\1 \2 \3/p' "$report") || true
    passed=$((passed + ${p:-0})) failed=$((failed + ${f:-0})) skipped=$((skipped + ${s:-0}))
done
echo
echo "Skipped on Win32:"
grep -h '^SKIP ' "$reports"/*.txt 2>/dev/null | sed 's/^SKIP *: */  /' || true
whole=0
if [ -s "$build/winapp-skipped-suites.txt" ]; then
    sed 's/^/  (whole suite) /' "$build/winapp-skipped-suites.txt"
    whole=$(wc -l <"$build/winapp-skipped-suites.txt")
fi
echo "Win32 cases: $passed passed, $failed failed, $skipped skipped; $whole suite(s) not built for Windows"

# --- 2. the screenshots -------------------------------------------------------------------------
# The suites wrote to the prefix's registry (version values, uninstall entries): the pictures get
# a Windows of their own, with only the demo data on it.
fresh_prefix
log "installing the demo data into the prefix"
demo="$build/demo-sandbox"
"$repo/scripts/make-demo-sandbox.sh" "$demo" >/dev/null
wprofile="$(wine cmd /c echo %USERPROFILE% | tr -d '\r')"
"$repo/scripts/install-demo-prefix.py" "$demo" "$(winepath -u 'C:\')" "$(winepath -u "$wprofile")" "$wprofile" \
    "$build/demo.reg"
wine reg import "Z:$build/demo.reg" >/dev/null 2>&1 || { log "reg import failed"; exit 1; }
# Windows' interface fonts are not Wine's: stand-ins from the build machine with their metrics
# close enough to judge the layout by.
for face in "Segoe UI=DejaVu Sans" "Microsoft YaHei UI=Noto Sans CJK SC"; do
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "${face%%=*}" /d "${face#*=}" /f >/dev/null 2>&1 ||
        { log "font replacement failed"; exit 1; }
done

log "drawing the screenshots"
shots="$root/screenshots/windows"
rm -rf "$shots"
mkdir -p "$shots"
shots_status=0
timeout 300 wine "$build/norvale-screenshots.exe" "Z:$shots" >"$build/screenshots.log" 2>&1 ||
    shots_status=$?
ls "$shots"/*.png 2>/dev/null | sed 's/^/  /' || true
[ "$shots_status" -eq 0 ] || log "the screenshot tool failed ($shots_status); see $build/screenshots.log"

# --- 3. start-up ------------------------------------------------------------------------------
log "start-up benchmark"
"$repo/bench/startup/run-wine.sh" "$build" "${NORVALE_STARTUP_RUNS:-7}" || log "the benchmark failed"

log "finished"
if [ "$suites_status" -ne 0 ] || [ "$shots_status" -ne 0 ]; then
    exit 1
fi
