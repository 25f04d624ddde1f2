#!/usr/bin/env bash
# Installs every Debian package that building, testing and running Norvale needs.
# Safe to run again: it installs only what is missing. Another list may be given instead (the
# fuzz script passes its own).
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
list="${1:-$here/debian-packages.txt}"
mapfile -t wanted < <(grep -v '^\s*#' "$list" | sed '/^\s*$/d')

missing=()
for pkg in "${wanted[@]}"; do
    dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed" || missing+=("$pkg")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
echo "[setup] installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
