#!/usr/bin/env bash
# Junk for the cleanup page of the demo sandbox: about 310 MB of real bytes spread over most
# categories, with two Chrome profiles and a Firefox profile, so that a real scan finds them.
# Usage: cleanup.sh <sandbox-folder>
set -euo pipefail
sandbox="${1:?usage: cleanup.sh <sandbox-folder>}"
drive="$sandbox/C"
user="$drive/Users/User"
local="$user/AppData/Local"
roaming="$user/AppData/Roaming"

# junk <file> <KiB>: a file of that many real (not sparse) bytes.
junk() {
    mkdir -p "$(dirname "$1")"
    head -c "$(($2 * 1024))" /dev/zero >"$1"
}

# Windows and user temporary files
for i in 1 2 3 4; do junk "$drive/Windows/Temp/TMP000$i.tmp" 1536; done
junk "$drive/Windows/Temp/MRT.log" 700
junk "$drive/Windows/Temp/msdt/diag.cab" 1200
for i in $(seq 1 12); do junk "$local/Temp/~DF$((4000 + i)).TMP" 900; done
junk "$local/Temp/chrome_installer/setup.exe" 6800
junk "$local/Temp/{5A1B2C3D}/payload.msi" 3100

# Windows Update downloads: large enough to show the warning colour
junk "$drive/Windows/SoftwareDistribution/Download/3f2a/windows10.0-kb5034441-x64.cab" 150000
junk "$drive/Windows/SoftwareDistribution/Download/7c1e/windows10.0-kb5034763-x64.psf" 70000

# Chrome: two profiles
chrome="$local/Google/Chrome/User Data"
for i in $(seq 0 9); do junk "$chrome/Default/Cache/Cache_Data/f_00000$i" 1400; done
junk "$chrome/Default/Code Cache/js/index" 4200
junk "$chrome/Default/GPUCache/data_1" 900
for i in $(seq 0 5); do junk "$chrome/Profile 1/Cache/Cache_Data/f_00010$i" 1100; done
junk "$chrome/Profile 1/Code Cache/wasm/index" 2300
mkdir -p "$chrome/Default/Extensions" # not a cache: never listed

# Firefox: one profile, roaming and local halves
profile="k7x2m9qa.default-release"
junk "$roaming/Mozilla/Firefox/Profiles/$profile/startupCache/startupCache.8.little" 2100
junk "$roaming/Mozilla/Firefox/Profiles/$profile/places.sqlite" 5000 # not a cache: never counted
for i in $(seq 0 7); do junk "$local/Mozilla/Firefox/Profiles/$profile/cache2/entries/E0A1B2C$i" 1200; done

# Logs, prefetch, thumbnails
junk "$drive/Windows/Logs/CBS/CBS.log" 3900
junk "$drive/Windows/Logs/WindowsUpdate/WindowsUpdate.20240101.etl" 2100
for i in $(seq 10 59); do junk "$drive/Windows/Prefetch/APP$i-1A2B3C$i.pf" 60; done
for s in 32 96 256 1024; do junk "$local/Microsoft/Windows/Explorer/thumbcache_$s.db" 1500; done

# Crash dumps and error reports
junk "$local/CrashDumps/explorer.exe.4120.dmp" 2600
junk "$drive/ProgramData/Microsoft/Windows/WER/ReportArchive/AppCrash_demo/Report.wer" 300
junk "$drive/Windows/Minidump/011524-9828-01.dmp" 800

# Recycle bin: one user's deleted files
bin="$drive/\$Recycle.Bin/S-1-5-21-1004336348-1177238915-682003330-1001"
junk "$bin/\$RQ1F2.zip" 7200
junk "$bin/\$IQ1F2.zip" 1
