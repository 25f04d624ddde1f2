#!/usr/bin/env bash
# Builds Norvale and runs the test lanes: the native Qt Test and platform suites, the platform
# layer cross-compiled with mingw-w64 under Wine, and the whole program built for Windows under
# Wine (the Windows-app lane; the first run on a machine builds Qt for it, about half an hour).
# Exits non-zero if anything fails.
set -uo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NORVALE_BUILD_DIR:-$root/build}"
jobs="$(nproc 2>/dev/null || echo 2)"

"$root/scripts/setup.sh" || exit 1

echo "== native lane: configure and build"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null || exit 1
cmake --build "$build" -j"$jobs" || exit 1

echo "== native lane: tests"
native_log="$(mktemp)"
(cd "$build" && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$jobs" 2>&1) | tee "$native_log"
native_status=${PIPESTATUS[0]}

echo "== Windows lane (mingw-w64 + Wine): build and tests"
wine_log="$(mktemp)"
"$root/scripts/test-wine.sh" "$build" 2>&1 | tee "$wine_log"
wine_status=${PIPESTATUS[0]}

echo "== Windows-app lane (Norvale.exe and its suites under Wine)"
winapp_log="$(mktemp)"
"$root/scripts/test-winapp.sh" "$build" 2>&1 | tee "$winapp_log"
winapp_status=${PIPESTATUS[0]}

count() { # passed failed from a ctest summary line
    sed -n 's/.*tests passed, \([0-9]*\) tests\{0,1\} failed out of \([0-9]*\).*/\1 \2/p' "$1" | tail -1
}
read -r nf nt <<<"$(count "$native_log")"
read -r wf wt <<<"$(count "$wine_log")"
read -r af at <<<"$(count "$winapp_log")"
winapp_cases="$(grep -h '^Win32 cases:' "$winapp_log" | tail -1)"
nf=${nf:-0}; nt=${nt:-0}; wf=${wf:-0}; wt=${wt:-0}; af=${af:-0}; at=${at:-0}
rm -f "$native_log" "$wine_log" "$winapp_log"

echo
echo "native lane: $((nt - nf)) of $nt passed; Windows lane: $((wt - wf)) of $wt passed;" \
    "Windows-app lane: $((at - af)) of $at passed"
[ -z "$winapp_cases" ] || echo "$winapp_cases"
if [ "$native_status" -ne 0 ] || [ "$wine_status" -ne 0 ] || [ "$winapp_status" -ne 0 ] \
    || [ "$nt" -eq 0 ] || [ "$wt" -eq 0 ] || [ "$at" -eq 0 ]; then
    fails=$((nf + wf + af)); [ "$fails" -eq 0 ] && fails=1
    echo "Total: $((nt - nf + wt - wf + at - af)) passed, $fails failed"
    exit 1
fi
echo "Total: $((nt + wt + at)) passed, 0 failed"
