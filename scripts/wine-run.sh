#!/usr/bin/env bash
# Runs one Windows test program under Wine for CTest: wine-run.sh PROGRAM [ARGS...]
# Wine starts some of its own helpers (explorer's desktop, the RPC service) from whichever program
# first needs them; they inherit that program's output and outlive it by a minute or more, and
# CTest waits for every writer of a test's output to let go. The program therefore writes to a
# file of its own, which is then passed on.
set -u
out="$(mktemp)"
trap 'rm -f "$out"' EXIT
wine "$@" >"$out" 2>&1 </dev/null
status=$?
cat "$out"
exit "$status"
