#!/usr/bin/env bash
# Demo data for the Programs page: install folders with executables and icons for the programs
# that uninstall.reg registers, the sandbox's stand-in uninstallers (<exe>.demo-uninstall), and
# Explorer's UserAssist records with times relative to today.
# Usage: uninstall.sh <sandbox-folder>
set -euo pipefail
sandbox="${1:?usage: uninstall.sh <sandbox-folder>}"
drive="$sandbox/C"
uninstall_key='HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall'

# file size: the main executable is the smallest one in its folder
put() { mkdir -p "$(dirname "$1")"; head -c "$2" /dev/zero >"$1"; }

icon() { # exe colour letter
    command -v convert >/dev/null 2>&1 || return 0
    convert -size 64x64 xc:none -fill "$2" -draw 'roundrectangle 2,2 61,61 14,14' \
        -fill white -gravity center -pointsize 34 -annotate +0+1 "$3" "$1.png" 2>/dev/null || true
}

program() { # folder main-exe colour letter key uninstaller exit-code [keep]
    local dir="$drive/Program Files/$1"
    put "$dir/$2" 2000
    put "$dir/resources.dat" 50000
    icon "$dir/$2" "$3" "$4"
    [ -n "$6" ] || return 0
    put "$dir/$6" 4000
    {
        echo "exit=$7"
        [ "${8:-}" = keep ] || echo "delete=C:\\Program Files\\${1//\//\\}"
        [ "${8:-}" = keep ] || echo "unregister=$uninstall_key\\$5"
    } >"$dir/$6.demo-uninstall"
}

program "7-Zip" 7zFM.exe '#2f6f3e' 7 "7-Zip" uninstall.exe 0
# Firefox's helper reports 1 after removing the folder: counted as uninstalled.
program "Mozilla Firefox" firefox.exe '#e66000' F "Mozilla Firefox 121.0 (x64 en-US)" uninstall/helper.exe 1
program "VideoLAN/VLC" vlc.exe '#f08a00' V "VLC media player" uninstall.exe 0
program "Notepad++" notepad++.exe '#6aa84f' N "Notepad++" uninstall.exe 0
program "GIMP 2" gimp-2.10.exe '#6b5e4a' G "GIMP-2_is1" uninstall.exe 0
program "Inkscape" inkscape.exe '#222222' I "Inkscape" uninstall.exe 0
# Steam's uninstaller fails and leaves everything: the page then offers Force Remove.
program "Steam" steam.exe '#1b2838' S "Steam" uninstall.exe 2 keep
program "Sketch Tools" sketch.exe '#9b59b6' P "" "" ""
program "Brightwork/Ledger" ledger.exe '#2563eb' L "Brightwork Ledger" uninstall.exe 0
program "Audacity" Audacity.exe '#0050a0' A "" "" ""
program "Python Launcher" py.exe '#3776ab' P "" "" ""

meeting="$drive/Users/User/AppData/Roaming/MeetingRoom"
put "$meeting/meeting.exe" 3000
put "$meeting/uninstall.exe" 5000
icon "$meeting/meeting.exe" '#2d8cff' M
cp "$meeting/meeting.exe.png" "$meeting/meeting.exe.101.png" 2>/dev/null || true
printf 'exit=0\ndelete=C:\\Users\\User\\AppData\\Roaming\\MeetingRoom\nunregister=HKCU\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Zoomish\n' \
    >"$meeting/uninstall.exe.demo-uninstall"

# Windows Installer products are removed through msiexec by product code.
mkdir -p "$drive/Windows/Installer"
msi() { # product-code folder
    printf 'exit=0\ndelete=C:\\Program Files\\%s\nunregister=%s\\%s\n' "$2" "$uninstall_key" "$1" \
        >"$drive/Windows/Installer/$1.demo-uninstall"
}
msi '{8E2C4A1F-5B3D-4F6E-9A7C-1D2B3E4F5A60}' Audacity
msi '{0C7E1A53-9F24-4B8D-A6E2-5D3C1B7F9E28}' 'Python Launcher'

# UserAssist: ROT13 names, the FILETIME at offset 16. Records of 72 bytes, as current Windows
# writes them, are not read, so VLC counts as never seen.
python3 - "$sandbox/registry.reg" <<'PY'
import sys, time, codecs
now = int(time.time())
def record(size, days_ago):
    ft = (now - days_ago * 86400 + 11644473600) * 10000000 if days_ago is not None else 0
    data = bytearray(size)
    data[4:8] = (days_ago or 1).to_bytes(4, "little")  # run count
    data[16:24] = ft.to_bytes(8, "little")
    return ",".join("%02x" % b for b in data)
entries = [
    (r"{6D809377-6AF0-444B-8957-A3773F02200E}\Notepad++\notepad++.exe", 64, 2),
    (r"{6D809377-6AF0-444B-8957-A3773F02200E}\GIMP 2\gimp-2.10.exe", 64, 200),
    (r"{6D809377-6AF0-444B-8957-A3773F02200E}\VideoLAN\VLC\vlc.exe", 72, 1),
    (r"C:\Program Files\7-Zip\7zFM.exe", 24, 10),
    (r"C:\Program Files\Brightwork\Ledger\ledger.exe --company demo", 64, 30),
    (r"C:\Program Files\Inkscape\inkscape.exe", 64, None),
    (r"Microsoft.Windows.Explorer", 64, 0),
    (r"{0139D44E-6AFE-49F2-8690-3DAFCAE6FFB8}\Accessories\Paint.lnk", 64, 5),
]
key = r"HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Explorer\UserAssist\{CEBFF5CD-ACE2-4F4F-9178-9926F41749EA}\Count"
lines = ["", "Windows Registry Editor Version 5.00", "", "[" + key + "]"]
for name, size, days in entries:
    encoded = codecs.encode(name, "rot13").replace("\\", "\\\\")
    lines.append('"%s"=hex:%s' % (encoded, record(size, days)))
with open(sys.argv[1], "a", encoding="utf-8") as f:
    f.write("\r\n".join(lines) + "\r\n")
PY
