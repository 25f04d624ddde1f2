#!/usr/bin/env bash
# Creates the demo sandbox: a folder that stands for a Windows machine (C/ for the system drive,
# registry.reg for the registry), filled by each feature's demo data in scripts/demo/.
# Usage: make-demo-sandbox.sh <sandbox-folder>
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
sandbox="${1:?usage: make-demo-sandbox.sh <sandbox-folder>}"

rm -rf "$sandbox"
mkdir -p "$sandbox/C/Windows/Temp" "$sandbox/C/Users/User/AppData/Local/Temp" \
    "$sandbox/C/Users/User/AppData/Roaming" "$sandbox/C/ProgramData" \
    "$sandbox/C/Program Files" "$sandbox/C/Program Files (x86)"

{
    printf 'Windows Registry Editor Version 5.00\r\n\r\n'
    for fragment in "$here"/demo/*.reg; do
        [ -e "$fragment" ] || continue
        # Each fragment carries its own header line; the registry reader skips repeats.
        cat "$fragment"
        printf '\r\n'
    done
} >"$sandbox/registry.reg"

for script in "$here"/demo/*.sh; do
    [ -e "$script" ] || continue
    bash "$script" "$sandbox"
done
echo "$sandbox"
