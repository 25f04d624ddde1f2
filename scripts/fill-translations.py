#!/usr/bin/env python3
"""Fill the English and Simplified Chinese catalogues from the feature owners' tables.

The tables (resources/translations/tables/*.tsv) are the only place where these two languages'
translations are written. Each has the header line

    context<TAB>source<TAB>en<TAB>zh_CN

and one line per text; "\\n" stands for a line break, "\\t" for a tab and "\\\\" for a backslash.
An empty cell means "no translation": the program then shows the source text.

For every message of Norvale_en.ts and Norvale_zh_CN.ts the script looks up (context, source):
a non-empty cell becomes the translation and the message is marked finished; any other message
is left unfinished with an empty translation, so that a stale or guessed text never reaches a
compiled catalogue. The other languages' catalogues are not touched.

Only the <translation> elements of the two catalogues are rewritten; everything else stays as
lupdate wrote it, so running lupdate again right after this script changes nothing.

Table rows that match no message (a typo in the table or a text changed in the code), rows
that disagree with each other and translations that drop a %1-style placeholder are printed as
warnings on stderr. With --strict the script exits with status 1 when it printed any warning;
--check changes nothing and also fails when a catalogue is not yet filled from the tables.
"""

import argparse
import glob
import os
import re
import sys
import tempfile
import xml.etree.ElementTree as ET

LANGUAGES = ("en", "zh_CN")
HEADER = ["context", "source"] + list(LANGUAGES)

CONTEXT_RE = re.compile(r"<context>(.*?)</context>", re.S)
NAME_RE = re.compile(r"<name>(.*?)</name>", re.S)
MESSAGE_RE = re.compile(r"<message(?:\s[^>]*)?>.*?</message>", re.S)
TRANSLATION_RE = re.compile(r"<translation(?P<attrs>\s[^>]*?)?(?:/>|>(?P<body>.*?)</translation>)", re.S)
TYPE_ATTR_RE = re.compile(r"""\s+type\s*=\s*(["'])[^"']*\1""")
PLACEHOLDER_RE = re.compile(r"%(?:L?[1-9][0-9]?|n)")


class Report:
    def __init__(self):
        self.warnings = 0

    def warn(self, message):
        self.warnings += 1
        print("warning: " + message, file=sys.stderr)

    @staticmethod
    def note(message):
        print(message)


def unescape_cell(cell):
    out = []
    i = 0
    while i < len(cell):
        ch = cell[i]
        if ch == "\\" and i + 1 < len(cell) and cell[i + 1] in "nt\\":
            out.append({"n": "\n", "t": "\t", "\\": "\\"}[cell[i + 1]])
            i += 2
        else:
            out.append(ch)
            i += 1
    return "".join(out)


def shown(text):
    """A text on one line, for messages."""
    return text.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t")


def read_tables(tables_dir, report):
    """Returns {(context, source): {language: text}} and, per key, where it was defined."""
    table = {}
    origin = {}
    for path in sorted(glob.glob(os.path.join(tables_dir, "*.tsv"))):
        name = os.path.basename(path)
        try:
            with open(path, encoding="utf-8-sig", newline="") as f:
                lines = f.read().splitlines()
        except (OSError, UnicodeDecodeError) as e:
            report.warn(f"{name}: cannot be read ({e}); skipped")
            continue
        if not lines or lines[0].rstrip("\r").split("\t") != HEADER:
            report.warn(f"{name}: the first line must be {'<TAB>'.join(HEADER)}; table skipped")
            continue
        for number, line in enumerate(lines[1:], start=2):
            line = line.rstrip("\r")
            if not line.strip():
                continue
            where = f"{name}:{number}"
            cells = line.split("\t")
            if len(cells) < 2 or len(cells) > len(HEADER):
                report.warn(f"{where}: expected {len(HEADER)} tab-separated cells, found {len(cells)}; row skipped")
                continue
            cells += [""] * (len(HEADER) - len(cells))
            context, source = unescape_cell(cells[0]), unescape_cell(cells[1])
            if not context or not source:
                report.warn(f"{where}: empty context or source; row skipped")
                continue
            texts = {lang: unescape_cell(cell) for lang, cell in zip(LANGUAGES, cells[2:])}
            key = (context, source)
            if key in table:
                if table[key] != texts:
                    first = "%s:%d" % origin[key]
                    report.warn(f"{where}: {context} \"{shown(source)}\" is already in {first} "
                                "with other translations; the first one is kept")
                continue
            table[key] = texts
            origin[key] = (name, number)
            for lang, text in texts.items():
                if text:
                    check_placeholders(where, lang, source, text, report)
    return table, origin


def check_placeholders(where, lang, source, text, report):
    wanted = sorted(set(PLACEHOLDER_RE.findall(source)))
    given = sorted(set(PLACEHOLDER_RE.findall(text)))
    if wanted != given:
        report.warn(f"{where}: the {lang} text of \"{shown(source)}\" has placeholders "
                    f"{' '.join(given) or 'none'}, the source {' '.join(wanted) or 'none'}")


def protect(text):
    """Escapes a text the way the catalogue files store it."""
    out = []
    for ch in text:
        code = ord(ch)
        if ch == "&":
            out.append("&amp;")
        elif ch == "<":
            out.append("&lt;")
        elif ch == ">":
            out.append("&gt;")
        elif ch == '"':
            out.append("&quot;")
        elif ch == "'":
            out.append("&apos;")
        elif (code < 0x20 and ch not in "\n\t") or code == 0x7F:
            out.append(f"&#x{code:x};")
        else:
            out.append(ch)
    return "".join(out)


def xml_text(fragment):
    """The character data of an escaped fragment such as the content of <name>."""
    return ET.fromstring(f"<x>{fragment}</x>").text or ""


def new_translation(message, text):
    """The <translation> element for a message: finished with text, or empty and unfinished."""
    numerus = message.get("numerus") == "yes"
    finished = bool(text)
    attrs = "" if finished else ' type="unfinished"'
    if numerus:
        # Every plural form gets the table's one text; the count goes into the placeholder.
        old = message.find("translation")
        forms = len(old.findall("numerusform")) if old is not None else 0
        forms = max(forms, 1)
        body = "".join(f"\n            <numerusform>{protect(text)}</numerusform>" for _ in range(forms))
        return f"<translation{attrs}>{body}\n        </translation>"
    return f"<translation{attrs}>{protect(text)}</translation>"


def fill_catalogue(path, lang, table, report, used, write=True):
    with open(path, encoding="utf-8") as f:
        original = f.read()

    counts = {"filled": 0, "empty": 0, "missing": 0}
    missing = []

    def fill_message(context, block):
        try:
            message = ET.fromstring(block)
        except ET.ParseError as e:
            report.warn(f"{os.path.basename(path)}: a message in context {context} cannot be read ({e}); left as it is")
            return block
        old = message.find("translation")
        if old is not None and old.get("type") in ("vanished", "obsolete"):
            return block
        source = message.findtext("source") or ""
        key = (context, source)
        texts = table.get(key)
        if texts is None:
            counts["missing"] += 1
            missing.append(key)
            text = ""
        else:
            used.add(key)
            text = texts[lang]
            counts["filled" if text else "empty"] += 1
        replacement = new_translation(message, text)
        found = TRANSLATION_RE.search(block)
        if found is None:
            # A message without a translation element: add one before </message>.
            cut = block.rindex("</message>")
            return block[:cut] + "    " + replacement + "\n    " + block[cut:]
        return block[: found.start()] + replacement + block[found.end():]

    def fill_context(match):
        body = match.group(1)
        name = NAME_RE.search(body)
        if name is None:
            return match.group(0)
        context = xml_text(name.group(1))
        body = MESSAGE_RE.sub(lambda m: fill_message(context, m.group(0)), body)
        return "<context>" + body + "</context>"

    updated = CONTEXT_RE.sub(fill_context, original)

    try:
        ET.fromstring(updated.encode("utf-8"))
    except ET.ParseError as e:
        report.warn(f"{os.path.basename(path)}: the filled catalogue would not be valid XML ({e}); file left unchanged")
        return counts, missing

    counts["changed"] = updated != original
    if updated != original and write:
        directory = os.path.dirname(os.path.abspath(path))
        fd, temporary = tempfile.mkstemp(prefix=".fill-", suffix=".ts", dir=directory)
        try:
            with os.fdopen(fd, "w", encoding="utf-8", newline="") as f:
                f.write(updated)
            os.chmod(temporary, os.stat(path).st_mode & 0o7777)
            os.replace(temporary, path)
        except BaseException:
            if os.path.exists(temporary):
                os.unlink(temporary)
            raise
    return counts, missing


def main(argv=None):
    here = os.path.dirname(os.path.abspath(__file__))
    default_dir = os.path.normpath(os.path.join(here, "..", "resources", "translations"))
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("translations", nargs="?", default=default_dir,
                        help="folder with the Norvale_<code>.ts catalogues (default: %(default)s)")
    parser.add_argument("--tables", help="folder with the *.tsv tables (default: <translations>/tables)")
    parser.add_argument("-v", "--verbose", action="store_true",
                        help="also list the messages that no table mentions")
    parser.add_argument("--strict", action="store_true", help="exit with status 1 if there was any warning")
    parser.add_argument("--check", action="store_true",
                        help="change nothing; exit with status 1 if a catalogue is not filled from the tables "
                        "or there was any warning")
    args = parser.parse_args(argv)

    tables_dir = args.tables or os.path.join(args.translations, "tables")
    report = Report()
    if not os.path.isdir(tables_dir):
        print(f"error: no tables folder {tables_dir}", file=sys.stderr)
        return 2
    table, origin = read_tables(tables_dir, report)

    used = set()
    seen_any = False
    for lang in LANGUAGES:
        path = os.path.join(args.translations, f"Norvale_{lang}.ts")
        if not os.path.isfile(path):
            report.warn(f"no catalogue {path}")
            continue
        seen_any = True
        try:
            counts, missing = fill_catalogue(path, lang, table, report, used, write=not args.check)
        except (OSError, UnicodeDecodeError, ET.ParseError) as e:
            report.warn(f"{path}: {e}; file left unchanged")
            continue
        if args.check and counts.get("changed"):
            report.warn(f"{os.path.basename(path)} is not filled from the current tables")
        report.note(f"{lang}: {counts['filled']} translated, {counts['empty']} with an empty cell, "
                    f"{counts['missing']} in no table")
        if args.verbose and lang == LANGUAGES[0]:
            for context, source in missing:
                report.note(f"  in no table: {context}\t{shown(source)}")

    if seen_any:
        for key in sorted(set(table) - used, key=lambda k: origin[k]):
            context, source = key
            report.warn(f"{'%s:%d' % origin[key]}: {context} \"{shown(source)}\" is not in the catalogues "
                        "(a typo in the table, or the text changed in the code)")

    if report.warnings:
        print(f"{report.warnings} warning(s)", file=sys.stderr)
    return 1 if ((args.strict or args.check) and report.warnings) else 0


if __name__ == "__main__":
    sys.exit(main())
