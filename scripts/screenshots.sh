#!/usr/bin/env bash
# Renders each page of Norvale to PNG under Xvfb, against the demo sandbox.
# Usage: screenshots.sh [language-code]   (default: the catalogue an English system gets)
# Output: build/screenshots/ (or build/screenshots/<code>/ when a code is given).
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NORVALE_BUILD_DIR:-$root/build}"
lang="${1:-}"

"$root/scripts/setup.sh"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --target norvale-screenshots -j"$(nproc)" >/dev/null

sandbox="$build/demo-sandbox"
"$root/scripts/make-demo-sandbox.sh" "$sandbox" >/dev/null
out="$build/screenshots${lang:+/$lang}"
mkdir -p "$out"

# Own settings folder, so the shots never depend on (or change) the developer's settings.
home="$build/screenshot-home"
rm -rf "$home"
mkdir -p "$home/config/Brightfen"
if [ -n "$lang" ]; then
    printf '[General]\nlanguage=%s\n' "$lang" >"$home/config/Brightfen/Norvale.conf"
fi

env NORVALE_SANDBOX="$sandbox" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data" \
    LANG=en_US.UTF-8 LC_ALL=en_US.UTF-8 QT_QPA_PLATFORM=xcb \
    xvfb-run -a -s "-screen 0 1280x800x24" "$build/tools/screenshots/norvale-screenshots" "$out" 2>"$build/screenshots.log"
ls "$out"/*.png
