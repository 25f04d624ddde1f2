#!/usr/bin/env bash
# Demo data for force removal: the files, running processes and scheduled task of Driftwood Sync,
# a program without an uninstaller (forceremove.reg registers it), beside processes and a task
# that belong to Windows and must stay.
# Usage: forceremove.sh <sandbox-folder>
set -euo pipefail
sandbox="${1:?usage: forceremove.sh <sandbox-folder>}"
drive="$sandbox/C"
user="$drive/Users/User/AppData"

put() { mkdir -p "$(dirname "$1")"; head -c "$2" /dev/zero >"$1"; }

app="$drive/Program Files/Driftwood Sync"
put "$app/DriftwoodSync.exe" 3500000
put "$app/sync-agent.exe" 900000
put "$app/plugins/cloud.dll" 14000000
put "$app/plugins/preview.dll" 9000000
put "$user/Roaming/Driftwood Sync/settings.json" 4096
put "$user/Roaming/Driftwood Sync/accounts.db" 180000
put "$user/Local/DriftwoodSync/cache/chunks.bin" 130000000
put "$drive/ProgramData/Driftwood/logs/agent.log" 2600000
put "$user/Roaming/Microsoft/Windows/Start Menu/Programs/Startup/Driftwood Sync.lnk" 1480

# The sandbox's process list and task scheduler; other demo scripts may add to them.
printf '4812\tC:\\Program Files\\Driftwood Sync\\DriftwoodSync.exe\n4830\tC:\\Program Files\\Driftwood Sync\\sync-agent.exe\n1204\tC:\\Windows\\explorer.exe\n' \
    >>"$sandbox/processes.txt"
printf '"\\Driftwood Sync Update","11/24/2026 9:00:00 AM","Ready"\r\n"\\Microsoft\\Windows\\Defrag\\ScheduledDefrag","N/A","Ready"\r\n' \
    >>"$sandbox/scheduledtasks.csv"
