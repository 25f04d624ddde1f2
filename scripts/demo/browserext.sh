#!/usr/bin/env bash
# Browser profiles for the extensions page: Chrome (stable with two profiles, and Beta), Edge and
# Firefox, shaped like the browsers' own files. Besides what the page lists they hold what it must
# not list: a theme, a component, a default-installed extension, a Firefox theme, built-in and
# user-disabled add-ons; and what only the remover sees: a pinned extension, several version
# folders, numbers beyond 2^53 in the preference files.
# Usage: browserext.sh <sandbox-folder>
set -euo pipefail
sandbox="${1:?usage: browserext.sh <sandbox-folder>}"
user="$sandbox/C/Users/User/AppData"

icon() { # file colour letter
    mkdir -p "$(dirname "$1")"
    command -v convert >/dev/null 2>&1 || return 0
    # The mark in the middle stands in for the letter when convert has no font to draw it with.
    convert -size 48x48 xc:none -fill "$2" -draw 'roundrectangle 1,1 46,46 11,11' \
        -fill 'rgba(255,255,255,0.9)' -draw 'roundrectangle 14,14 33,33 5,5' -fill "$2" -draw 'circle 23.5,23.5 23.5,19' \
        "$1" 2>/dev/null || true
}

python3 - "$user" <<'PY'
import json, os, sys

user = sys.argv[1]
local, roaming = f"{user}/Local", f"{user}/Roaming"

def write(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as f:
        f.write(text)

def extension(profile, ext_id, versions, manifest, locales=None, icons=()):
    for version in versions:
        folder = f"{profile}/Extensions/{ext_id}/{version}"
        m = dict(manifest, version=version.split("_")[0])
        write(f"{folder}/manifest.json", json.dumps(m, ensure_ascii=False, indent=2))
        for locale, messages in (locales or {}).items():
            write(f"{folder}/_locales/{locale}/messages.json",
                  json.dumps({k: {"message": v} for k, v in messages.items()}, ensure_ascii=False))
        for size, (colour, letter) in icons:
            with open(f"{folder}.icons", "a") as f:  # drawn by the shell part below
                f.write(f"{folder}/icons/icon{size}.png\t{colour}\t{letter}\n")

def preferences(profile, settings, pinned=()):
    # Chrome writes compact JSON; the large integers are the kind a double would round.
    prefs = {"browser": {"window_placement": {"bottom": 1040, "maximized": True}},
             "extensions": {"settings": settings, "pinned_extensions": list(pinned),
                            "last_chrome_version": "120.0.6099.130"},
             "profile": {"name": "Person 1", "exit_type": "Normal"},
             "sync": {"local_device_guid": 18446744073709551615, "demographics_seed": 9007199254740993}}
    write(f"{profile}/Preferences", json.dumps(prefs, ensure_ascii=False, separators=(",", ":")))
    write(f"{profile}/Secure Preferences", json.dumps(
        {"extensions": {"settings": {k: {"location": v.get("location", 1)} for k, v in settings.items()}},
         "protection": {"macs": {"extensions": {"settings": {k: "0F" * 32 for k in settings}}}}},
        separators=(",", ":")))

def store(install_time="13345678901234567"):
    return {"location": 1, "state": 1, "install_time": install_time, "from_webstore": True,
            "update_url": "https://clients2.google.com/service/update2/crx"}

# Chromium IDs: 32 letters from a to p.
NOTES = "ghbmnnjooekpmoecnnnilnnbdlolhkhi"
SHIELD = "cjpalhdlnbpafiamejdnhcphjbkeiagm"
TRANSLATE = "aapbdbdomjkkjkaonfhkkikfgjllcleb"
JSONV = "gbmdgpbipfallnflgajpaliibnhdgobh"
THEME = "iiihlpikmpglhkbmkkalgcpgndpldajn"
COMPONENT = "nmmhkkegccagdldgiimedpiccmgmieda"
DEFAULT = "pjkljhegncpnkpknbcohdijeoejaedia"

ext_words = {"name": "__MSG_extName__", "description": "__MSG_extDesc__", "default_locale": "en",
             "manifest_version": 3, "icons": {"16": "icons/icon16.png", "48": "icons/icon48.png",
                                              "128": "icons/icon128.png"}}

chrome = f"{local}/Google/Chrome/User Data"
default = f"{chrome}/Default"
extension(default, SHIELD, ["1.52.2_0", "1.9.0_0"], ext_words,
          {"en": {"extName": "Ad Shield", "extDesc": "Blocks ads and trackers on every page"},
           "zh_CN": {"extname": "广告护盾", "extDesc": "拦截广告"}}, [(48, ("#dc2626", "A"))])
extension(default, NOTES, ["3.10.1_0", "3.9.7_0"],
          {"name": "Quick Notes", "description": "Jot down notes in a side panel",
           "icons": {"48": "icons/icon48.png"}}, icons=[(48, ("#f59e0b", "N"))])
extension(default, TRANSLATE, ["2.0.16_0"],
          {"name": "__MSG_appName__", "description": "__MSG_appDesc__", "default_locale": "zh_CN",
           "icons": {"128": "icons/icon128.png"}},
          {"zh_CN": {"appName": "网页翻译助手", "appDesc": "划词翻译"}, "en": {"appName": "Page Translator"}},
          [(128, ("#2563eb", "译"))])
extension(default, THEME, ["3_0"], {"name": "Midnight Blue", "theme": {"colors": {"frame": [20, 30, 60]}}})
extension(default, COMPONENT, ["1.0.0.6_0"], {"name": "Web Store Payments", "description": "component"})
extension(default, DEFAULT, ["1.0.3_0"], {"name": "Docs Offline", "description": "default-installed"})
preferences(default, {SHIELD: store(), NOTES: store(), TRANSLATE: store(),
                      THEME: store(), COMPONENT: {"location": 10, "state": 1},
                      DEFAULT: {"location": 1, "was_installed_by_default": True, "state": 1}},
            pinned=[SHIELD, NOTES])

profile1 = f"{chrome}/Profile 1"
extension(profile1, SHIELD, ["1.52.2_0"], ext_words,
          {"en": {"extName": "Ad Shield", "extDesc": "Blocks ads and trackers on every page"}},
          [(48, ("#dc2626", "A"))])
preferences(profile1, {SHIELD: store()})

beta = f"{local}/Google/Chrome Beta/User Data/Default"
extension(beta, JSONV, ["0.18.1_0"],
          {"name": "JSON Viewer", "description": "Pretty-prints JSON documents",
           "icons": {"32": "icons/icon32.png"}}, icons=[(32, ("#10b981", "J"))])
extension(beta, NOTES, ["3.10.1_0"], {"name": "Quick Notes", "description": "Jot down notes in a side panel"})
preferences(beta, {JSONV: store(), NOTES: store()})

edge = f"{local}/Microsoft/Edge/User Data/Default"
extension(edge, SHIELD, ["1.52.2_0"], ext_words,
          {"en": {"extName": "Ad Shield", "extDesc": "Blocks ads and trackers on every page"}},
          [(48, ("#dc2626", "A"))])
extension(edge, "kbfnbcaeplbcioakkpcpgfkobkghlhen", ["14.1152.0_0"],
          {"name": "Grammar Helper", "description": "Checks spelling and grammar as you type"})
preferences(edge, {SHIELD: store()})

# Firefox: the add-on database beside the packed and unpacked add-ons.
profile = f"{roaming}/Mozilla/Firefox/Profiles/k7x2m9qa.default-release"
def addon(addon_id, name, description, **extra):
    a = {"id": addon_id, "syncGUID": "{0b7c5c2f-1e0b-4c39-9e59-6c1f3f3bd5a1}", "version": extra.pop("version", "1.0"),
         "type": "extension", "location": "app-profile", "active": True, "userDisabled": False,
         "appDisabled": False, "pendingUninstall": False, "installDate": 1700000000000,
         "defaultLocale": {"name": name, "description": description, "creator": None}}
    a.update(extra)
    return a
addons = [
    addon("tab-grouper@example.org", "Tab Grouper", "Sorts your tabs into tidy groups", version="5.2.1",
          icons={"32": "icons/icon32.png", "64": "icons/icon64.png"}),
    addon("{d10d0bf8-f5b5-c8b4-a8b2-2b9879e08c5d}", "Cookie Cleaner", "Forgets cookies when a tab closes",
          version="3.4.0", icons={"48": "jar:file:///x.xpi!/icon.png"}),
    addon("reader-view@example.org", "Reader Mode Plus", "Clean reading view for long articles",
          version="2.0.3", active=False, appDisabled=True),
    addon("video-speed@example.org", "Video Speed", "Disabled by the user: not listed", userDisabled=True,
          active=False),
    addon("dark-sky@example.org", "Dark Sky Theme", "a theme", type="theme"),
    addon("screenshots@mozilla.org", "Screenshots", "built in", location="app-builtin"),
    addon("formautofill@mozilla.org", "Form Autofill", "system default", location="app-system-defaults"),
]
write(f"{profile}/extensions.json", json.dumps({"schemaVersion": 36, "addons": addons}, separators=(",", ":")))
for a in addons[:2] + addons[3:4]:
    write(f"{profile}/extensions/{a['id']}.xpi", "PK")
write(f"{profile}/extensions/tab-grouper@example.org/manifest.json", '{"name":"Tab Grouper"}')
with open(f"{profile}/extensions/tab-grouper@example.org.icons", "w") as f:
    f.write(f"{profile}/extensions/tab-grouper@example.org/icons/icon64.png\t#ff7139\tT\n")
PY

# Icons listed by the Python part: one small PNG each.
find "$user" -name '*.icons' -print0 | while IFS= read -r -d '' list; do
    while IFS=$'\t' read -r file colour letter; do
        icon "$file" "$colour" "$letter"
    done <"$list"
    rm -f "$list"
done
