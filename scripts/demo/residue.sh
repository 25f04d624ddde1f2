#!/usr/bin/env bash
# Leftovers for the residue dialog of the demo sandbox: orphaned folders in Roaming, Local and
# ProgramData on both sides of the size thresholds, cache, log and crash folders inside installed
# programs' data folders, and an uninstall history whose programs left folders behind (plus two
# entries whose names try to reach outside a root, which the scan must ignore).
# Usage: residue.sh <sandbox-folder>
set -euo pipefail
sandbox="${1:?usage: residue.sh <sandbox-folder>}"
drive="$sandbox/C"
user="$drive/Users/User"
roaming="$user/AppData/Roaming"
local="$user/AppData/Local"
programdata="$drive/ProgramData"

# blob <file> <KiB>: a sparse file of that size; the scan reads sizes, never contents.
blob() {
    mkdir -p "$(dirname "$1")"
    truncate -s "$(($2 * 1024))" "$1"
}

# Orphans: no installed program is named like them.
blob "$roaming/Spotify/Data/cache-0001.bin" 30000
blob "$roaming/Spotify/Users/demo/ad-state" 12000
blob "$roaming/Slack/IndexedDB/store.ldb" 3100 # above 512 KiB, below 5 MiB: listed, not ticked
blob "$roaming/OldTool/settings.db" 600        # just above 512 KiB
blob "$roaming/TinyApp/config.ini" 400         # below 512 KiB: never listed
blob "$roaming/Audacity/audacity.cfg" 9000     # an installed program's data: never an orphan
blob "$local/Discord/app-1.0.9012/Discord.exe" 64000
blob "$local/Evernote/evernote.db" 8200
blob "$local/Packages/Microsoft.Windows.Photos/settings.dat" 7000 # generic name: never listed
blob "$programdata/OldVendor Licensing/licence.dat" 7200
blob "$programdata/Package Cache/{A1B2}/setup.msi" 40000 # skipped in ProgramData
blob "$programdata/Microsoft/Windows/WER/report.wer" 9000

# Cache, log and crash folders inside installed programs' data folders.
blob "$roaming/Inkscape/cache/icons.cache" 12500
blob "$roaming/Audacity/logs/audacity.log" 2100
blob "$local/Steam/htmlcache/Cache/data_1" 31000
blob "$local/Steam/logs/bootstrap_log.txt" 1600
blob "$local/GIMP/CrashDumps/gimp-2.10.dmp" 2600
blob "$local/GIMP/cache/thumbs.bin" 900 # below 1 MiB: never listed
blob "$local/NVIDIA Corporation/GLCache/shader.bin" 50000 # protected vendor: never searched

# Programs this system uninstalled, with what they left behind.
blob "$roaming/Figma Desktop/Cache/f_000001" 16000
blob "$local/FigmaDesktop/app.log" 2200
blob "$local/PaintStudio3/brushes.dat" 5400
blob "$programdata/Pixel/Licensing/pixel.lic" 3000
blob "$drive/Program Files/Paint Studio/plugins/filters.dll" 9300

history="$roaming/Brightfen/Norvale"
mkdir -p "$history"
stamp() { date -d "$1" +%Y-%m-%dT%H:%M:%S; }
cat >"$history/uninstall-history.json" <<EOF
[{"name":"Figma Desktop","publisher":"Figma, Inc.","installLocation":"","displayIcon":"","uninstalledAt":"$(stamp '-9 days')"},
{"name":"Paint Studio 3","publisher":"Pixel Forge","installLocation":"C:\\\\Program Files\\\\Paint Studio","displayIcon":"","uninstalledAt":"$(stamp '-2 days')"},
{"name":"..","publisher":"Microsoft Corporation","installLocation":"C:\\\\Users\\\\User","displayIcon":"","uninstalledAt":"$(stamp '-1 days')"},
{"name":"..\\\\..\\\\Windows","publisher":"","installLocation":"C:\\\\","displayIcon":"","uninstalledAt":"not a date"}]
EOF
