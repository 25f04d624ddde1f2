#!/usr/bin/env bash
# Packaged apps of the demo machine: the catalogue file the sandbox platform reads (packages.txt),
# install folders under C/Program Files/WindowsApps with manifests (plain names, ms-resource names
# in their three forms, one bundle manifest), logos with and without scale qualifiers, and
# packages the scanner leaves out (framework, resource, system, bundle, language and codec parts).
# Usage: winapps.sh <sandbox-folder>
set -euo pipefail
sandbox="${1:?usage: winapps.sh <sandbox-folder>}"
apps="$sandbox/C/Program Files/WindowsApps"
mkdir -p "$apps"

python3 - "$sandbox" <<'PY'
import os, struct, sys, zlib

sandbox = sys.argv[1]
apps = os.path.join(sandbox, "C", "Program Files", "WindowsApps")

def png(path, side, rgb):
    """A rounded tile in the app's colour with a light disc, as small store logos look."""
    r, g, b = rgb
    rows = []
    c = (side - 1) / 2
    for y in range(side):
        row = bytearray([0])
        for x in range(side):
            dx, dy = abs(x - c), abs(y - c)
            corner = side * 0.2
            ox, oy = max(dx - (c - corner), 0), max(dy - (c - corner), 0)
            inside = ox * ox + oy * oy <= corner * corner
            disc = (x - c) ** 2 + (y - c) ** 2 <= (side * 0.22) ** 2
            if not inside:
                row += bytes([0, 0, 0, 0])
            elif disc:
                row += bytes([255, 255, 255, 235])
            else:
                shade = 1 - 0.25 * y / side
                row += bytes([int(r * shade), int(g * shade), int(b * shade), 255])
        rows.append(bytes(row))
    raw = zlib.compress(b"".join(rows), 9)
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0))
                + chunk(b"IDAT", raw) + chunk(b"IEND", b""))

def filler(folder, sizes):
    """Sparse payload files, so the folders have realistic sizes without using the disk."""
    os.makedirs(folder, exist_ok=True)
    for i, size in enumerate(sizes):
        with open(os.path.join(folder, "payload%d.bin" % i), "wb") as f:
            f.truncate(size)

KB, MB = 1024, 1024 * 1024

# name, version, publisher id, manifest display name, manifest publisher, runtime display name,
# logo attribute, logo files to create (relative), colour, payload sizes, flags
packages = [
    ("Microsoft.WindowsCalculator", "11.2401.0.0", "8wekyb3d8bbwe", "ms-resource:AppName", "Microsoft Corporation",
     "", r"Assets\CalculatorAppList.png", ["Assets/CalculatorAppList.scale-200.png"], (14, 116, 144), [12 * MB, 3 * MB], {}),
    ("Microsoft.WindowsNotepad", "11.2312.18.0", "8wekyb3d8bbwe", "Notepad", "Microsoft Corporation",
     "", r"Assets\NotepadAppList.png", ["Assets/NotepadAppList.png"], (37, 99, 235), [4 * MB, 700 * KB], {}),
    ("Microsoft.Paint", "11.2311.30.0", "8wekyb3d8bbwe", "ms-resource:///Resources/AppName", "ms-resource:PublisherName",
     "", r"Assets\PaintAppList.png", ["Assets/PaintAppList.scale-150.png"], (234, 88, 12), [27 * MB, 5 * MB], {}),
    ("Microsoft.ZuneMusic", "11.2312.4.0", "8wekyb3d8bbwe", "ms-resource://AppStoreName", "Microsoft Corporation",
     "", r"Assets\AppList.png", ["Assets/AppList.scale-100.png"], (220, 38, 38), [41 * MB], {}),
    ("SpotifyAB.SpotifyMusic", "1.229.722.0", "zpdnekdrzrea0", "Spotify Music", "Spotify AB",
     "", "", [], None, [176 * MB, 12 * MB], {}),
    ("Microsoft.MicrosoftEdge.Stable", "120.0.2210.91", "8wekyb3d8bbwe", "Microsoft Edge", "Microsoft Corporation",
     "", "", [], None, [2 * MB], {"signature": "system", "bundle": "1", "bundleManifest": True}),
    ("Fabrikam.PhotoLab", "2.4.0.0", "q4d96b2w5wcc2", "ms-resource:AppTitle", "Fabrikam",
     "ms-resource:AppTitle", r"Images\Logo.png", [], None, [6 * MB + 300 * KB], {}),
    ("Microsoft.WindowsTerminal", "1.18.3181.0", "8wekyb3d8bbwe", "Windows Terminal", "Microsoft Corporation",
     "", r"Images\Square44x44Logo.png", ["Images/Square44x44Logo.scale-100.png"], (30, 41, 59), [21 * MB, 9 * MB], {}),
    ("5319275A.WhatsAppDesktop", "2.2401.4.0", "cv1g1gvanyjgm", "WhatsApp", "WhatsApp Inc.",
     "", r"Assets\Square44x44Logo.png", ["Assets/Square44x44Logo.scale-200.png"], (22, 163, 74), [220 * MB, 61 * MB], {}),
    ("Microsoft.Todos", "2.114.7122.0", "8wekyb3d8bbwe", "Microsoft To Do", "Microsoft Corporation",
     "", "", [], None, [48 * MB], {}),
    ("Microsoft.WindowsAlarms", "11.2312.6.0", "8wekyb3d8bbwe", "ms-resource:AppName", "Microsoft Corporation",
     "", r"Assets\AlarmsAppList.png", ["Assets/AlarmsAppList.scale-125.png"], (79, 70, 229), [8 * MB], {}),
    ("Microsoft.BingWeather", "4.53.52892.0", "8wekyb3d8bbwe", "MSN Weather", "Microsoft Corporation",
     "", "", [], None, [19 * MB, 900 * KB], {}),
    ("Clipchamp.Clipchamp", "2.9.1.0", "yxz26nhyzhsrt", "Microsoft Clipchamp", "Microsoft Corp.",
     "", r"Assets\Square44x44Logo.png", ["Assets/Square44x44Logo.scale-400.png"], (124, 58, 237), [1100 * MB, 240 * MB], {}),
    ("Microsoft.ScreenSketch", "11.2312.33.0", "8wekyb3d8bbwe", "Snipping Tool", "Microsoft Corporation",
     "", "", [], None, [33 * MB], {}),
    ("Microsoft.GamingApp", "2401.1001.3.0", "8wekyb3d8bbwe", "Xbox", "Microsoft Corporation",
     "", "", [], None, [96 * MB], {}),
    ("AppUp.IntelGraphicsExperience", "1.100.5185.0", "8j3eq9eme6ctt", "Intel® Graphics Command Center",
     "INTEL CORP", "", "", [], None, [88 * MB], {}),
    ("Microsoft.WindowsCamera", "2023.2312.3.0", "8wekyb3d8bbwe", "Camera", "Microsoft Corporation",
     "Camera", "", [], None, [], {"noFolder": True}),
    ("Microsoft.Windows.Photos", "2024.11010.9001.0", "8wekyb3d8bbwe", "Microsoft Photos", "Microsoft Corporation",
     "", "", [], None, [14 * MB + 200 * KB], {}),
    # Left out by the scanner.
    ("Microsoft.VCLibs.140.00", "14.0.33519.0", "8wekyb3d8bbwe", "Microsoft Visual C++ Runtime", "Microsoft Platform Extensions",
     "", "", [], None, [1 * MB], {"framework": "1"}),
    ("Microsoft.WindowsCalculator", "11.2401.0.0", "8wekyb3d8bbwe", "Calculator resources", "Microsoft Corporation",
     "", "", [], None, [200 * KB], {"resource": "1", "suffix": "split.scale-100"}),
    ("Microsoft.Windows.ShellExperienceHost", "10.0.22621.2792", "cw5n1h2txyewy", "Windows Shell Experience Host",
     "Microsoft Windows", "", "", [], None, [3 * MB], {"signature": "system"}),
    ("Contoso.MediaSuite", "3.0.0.0", "x5ab2v2c1nq6e", "Contoso Media Suite", "Contoso", "", "", [], None,
     [10 * MB], {"bundle": "1"}),
    ("Microsoft.LanguageExperiencePackde-DE", "22621.18.54.0", "8wekyb3d8bbwe", "Deutsch Local Experience Pack",
     "Microsoft Corporation", "", "", [], None, [30 * MB], {}),
    ("Contoso.MPEG-2Tools", "1.0.2.0", "x5ab2v2c1nq6e", "MPEG-2 Tools", "Contoso", "", "", [], None, [2 * MB], {}),
    ("Microsoft.HEVCVideoExtension", "2.0.61931.0", "8wekyb3d8bbwe", "HEVC Video Extensions", "Microsoft Corporation",
     "", "", [], None, [4 * MB], {}),
    ("Microsoft.DesktopAppInstaller", "1.21.3482.0", "8wekyb3d8bbwe", "App Installer", "Microsoft Corporation",
     "", "", [], None, [25 * MB], {}),
]

strings = {
    "Microsoft.WindowsCalculator?ms-resource:AppName": "Windows Calculator",
    "Microsoft.Paint?ms-resource://Microsoft.Paint/Resources/AppName": "Paint",
    "Microsoft.Paint?ms-resource:PublisherName": "Microsoft Corporation",
    "Microsoft.ZuneMusic?ms-resource://Microsoft.ZuneMusic/Resources/AppStoreName": "Media Player",
    "Microsoft.WindowsAlarms?ms-resource:AppName": "Clock",
}

catalogue = ["# Packaged apps of the demo machine, in the order the package manager returns them.", ""]
full_names = {}
for (name, version, pid, display, publisher, runtime_name, logo_attr, logo_files, colour, sizes, flags) in packages:
    suffix = flags.get("suffix", "")
    arch = "neutral" if flags.get("bundle") else "x64"
    full = "%s_%s_%s_%s_%s" % (name, version, arch, suffix, pid)
    if not flags.get("resource"):
        full_names[name] = full
    folder = os.path.join(apps, full)
    catalogue += ["[package]", "name=" + name, "fullName=" + full, "familyName=%s_%s" % (name, pid),
                  "publisherId=" + pid, "version=" + version,
                  "location=C:\\Program Files\\WindowsApps\\" + full,
                  "displayName=" + (runtime_name or display), "publisherDisplayName=" + publisher]
    for key in ("framework", "resource", "bundle", "signature"):
        if key in flags:
            catalogue.append("%s=%s" % (key, flags[key]))
    if "signature" not in flags:
        catalogue.append("signature=store")
    catalogue.append("")
    if flags.get("noFolder"):
        continue
    filler(os.path.join(folder, "bin"), sizes)
    logo = ' Square44x44Logo="%s"' % logo_attr if logo_attr else ""
    manifest = ('<?xml version="1.0" encoding="utf-8"?>\n<Package xmlns="http://schemas.microsoft.com/appx/manifest/foundation/windows10">\n'
                '  <Identity Name="%s" Version="%s" />\n  <Properties>\n    <DisplayName>%s</DisplayName>\n'
                '    <PublisherDisplayName>%s</PublisherDisplayName>\n  </Properties>\n'
                '  <Applications><Application Id="App"><uap:VisualElements DisplayName="%s"%s /></Application></Applications>\n'
                '</Package>\n') % (name, version, display, publisher, display, logo)
    if flags.get("bundleManifest"):
        os.makedirs(os.path.join(folder, "AppxMetadata"), exist_ok=True)
        path = os.path.join(folder, "AppxMetadata", "AppxBundleManifest.xml")
    else:
        path = os.path.join(folder, "AppxManifest.xml")
    with open(path, "w", encoding="utf-8") as f:
        f.write(manifest)
    for rel in logo_files:
        png(os.path.join(folder, rel), 44, colour)

catalogue.append("[strings]")
for key, value in strings.items():
    name, reference = key.split("?", 1)
    catalogue.append("@{%s?%s}=%s" % (full_names[name], reference, value))
with open(os.path.join(sandbox, "packages.txt"), "w", encoding="utf-8") as f:
    f.write("\n".join(catalogue) + "\n")
PY
