#!/usr/bin/env python3
"""Installs the demo sandbox into a Wine prefix the way the data would reach Windows.

Usage: install-demo-prefix.py <sandbox> <drive_c> <profile> <profile-as-windows-path> <reg-out>

The sandbox's drive goes into the prefix's, onto existing folders whatever their case (the prefix
has "windows" where the sandbox has "Windows": to Linux two spellings are two folders), and its
user "User" becomes the Wine user. The registry goes to <reg-out> for `wine reg import`, in
UTF-16 with the byte-order mark, which is how reg reads names beyond ASCII.
"""
import os
import shutil
import sys

sandbox, drive, profile, windows_profile, reg = sys.argv[1:6]
drive, profile = drive.rstrip("/"), profile.rstrip("/")

with open(os.path.join(sandbox, "registry.reg"), encoding="utf-8") as f:
    text = f.read()
# Inside .reg strings a backslash is written twice.
text = text.replace("C:\\\\Users\\\\User", windows_profile.replace("\\", "\\\\"))
with open(reg, "w", encoding="utf-16", newline="") as f:
    f.write(text)


def place(parent, name):
    if os.path.isdir(parent):
        for existing in os.listdir(parent):
            if existing.lower() == name.lower():
                return os.path.join(parent, existing)
    return os.path.join(parent, name)


def target_of(relative):
    parts = relative.split(os.sep)
    path = drive
    if len(parts) >= 2 and parts[0].lower() == "users" and parts[1] == "User":
        path, parts = profile, parts[2:]
    for part in parts:
        path = place(path, part)
    return path


source = os.path.join(sandbox, "C")
for folder, subfolders, files in os.walk(source):
    relative = os.path.relpath(folder, source)
    here = drive if relative == "." else target_of(relative)
    os.makedirs(here, exist_ok=True)
    links = [s for s in subfolders if os.path.islink(os.path.join(folder, s))]
    for name in files + links:
        shutil.copy2(os.path.join(folder, name), place(here, name), follow_symlinks=False)
