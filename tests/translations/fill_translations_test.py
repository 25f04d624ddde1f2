#!/usr/bin/env python3
"""Tests of scripts/fill-translations.py on small catalogues written as lupdate writes them.

If NORVALE_LUPDATE and NORVALE_LRELEASE name the Qt tools, the filled catalogues also go
through a real lupdate run (which must change nothing) and lrelease.
"""

import contextlib
import importlib.util
import io
import os
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ET

HERE = os.path.dirname(os.path.abspath(__file__))
# Importing the script must not leave a bytecode cache in the source tree.
sys.dont_write_bytecode = True
SCRIPT = os.path.join(HERE, "..", "..", "scripts", "fill-translations.py")
spec = importlib.util.spec_from_file_location("fill_translations", SCRIPT)
fill = importlib.util.module_from_spec(spec)
spec.loader.exec_module(fill)

CATALOGUE = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="{lang}">
<context>
    <name>Sidebar</name>
    <message>
        <source>系统概览</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a &quot;b&quot; &apos;c&apos; &lt;d&gt; &amp; e
f</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Stale</source>
        <translation>left over from an older table</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
"""

SOURCE = r"""#include <QObject>
class Sidebar : public QObject { Q_OBJECT
    void f() { tr("系统概览"); tr("a \"b\" 'c' <d> & e\nf"); tr("%n file(s)", nullptr, 2); tr("Stale"); }
};
class TitleBar : public QObject { Q_OBJECT
    void f() { tr("Help"); }
};
"""

HEADER = "context\tsource\ten\tzh_CN\n"
ROWS = (
    "Sidebar\t系统概览\tSystem Overview\t\n"
    "Sidebar\ta \"b\" 'c' <d> & e\\nf\tA \"B\" <D> & E\\nF\tz\n"
    "Sidebar\t%n file(s)\t%n file(s)\t%n 个文件\n"
    "TitleBar\tHelp\t\t帮助\n"
)


def translations(path):
    """{(context, source): (type or None, text or [numerus forms])} of a catalogue."""
    found = {}
    for context in ET.parse(path).getroot().iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            t = message.find("translation")
            forms = t.findall("numerusform")
            found[(name, message.findtext("source"))] = (
                t.get("type"), [f.text or "" for f in forms] if forms else (t.text or ""))
    return found


class FillTranslations(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.TemporaryDirectory()
        self.root = self.dir.name
        os.mkdir(os.path.join(self.root, "tables"))
        for lang in ("en", "zh_CN", "de"):
            self.write(f"Norvale_{lang}.ts", CATALOGUE.format(lang=lang))

    def tearDown(self):
        self.dir.cleanup()

    def write(self, name, text):
        with open(os.path.join(self.root, name), "w", encoding="utf-8") as f:
            f.write(text)

    def read(self, name):
        with open(os.path.join(self.root, name), encoding="utf-8") as f:
            return f.read()

    def run_fill(self, *extra):
        err = io.StringIO()
        with contextlib.redirect_stdout(io.StringIO()), contextlib.redirect_stderr(err):
            status = fill.main([self.root, *extra])
        return status, err.getvalue()

    def test_fills_finished_and_leaves_the_rest_unfinished(self):
        self.write("tables/shell.tsv", HEADER + ROWS)
        status, err = self.run_fill("--strict")
        self.assertEqual((status, err), (0, ""))

        cases = [
            ("en", ("Sidebar", "系统概览"), (None, "System Overview")),
            ("en", ("Sidebar", "a \"b\" 'c' <d> & e\nf"), (None, "A \"B\" <D> & E\nF")),
            ("en", ("Sidebar", "%n file(s)"), (None, ["%n file(s)", "%n file(s)"])),
            ("en", ("TitleBar", "Help"), ("unfinished", "")),
            ("en", ("Sidebar", "Stale"), ("unfinished", "")),
            ("zh_CN", ("Sidebar", "系统概览"), ("unfinished", "")),
            ("zh_CN", ("TitleBar", "Help"), (None, "帮助")),
            ("zh_CN", ("Sidebar", "%n file(s)"), (None, ["%n 个文件", "%n 个文件"])),
            ("zh_CN", ("Sidebar", "Stale"), ("unfinished", "")),
        ]
        for lang, key, expected in cases:
            with self.subTest(lang=lang, key=key):
                self.assertEqual(translations(os.path.join(self.root, f"Norvale_{lang}.ts"))[key], expected)
        self.assertEqual(self.read("Norvale_de.ts"), CATALOGUE.format(lang="de"))

    def test_second_run_changes_nothing(self):
        self.write("tables/shell.tsv", HEADER + ROWS)
        self.run_fill()
        first = self.read("Norvale_en.ts")
        self.assertEqual(self.run_fill("--check"), (0, ""))
        self.assertEqual(self.read("Norvale_en.ts"), first)

    def test_check_reports_an_unfilled_catalogue_without_writing(self):
        self.write("tables/shell.tsv", HEADER + ROWS)
        status, err = self.run_fill("--check")
        self.assertEqual(status, 1)
        self.assertIn("Norvale_en.ts is not filled", err)
        self.assertEqual(self.read("Norvale_en.ts"), CATALOGUE.format(lang="en"))

    def test_table_problems_are_warned(self):
        cases = {
            "unknown text": ("Sidebar\t系统概览X\tX\t\n", "is not in the catalogues"),
            "unknown context": ("SideBar\t系统概览\tX\t\n", "is not in the catalogues"),
            "conflicting rows": ("Sidebar\t系统概览\tSystem overview\t\n", "with other translations"),
            "placeholders differ": ("Sidebar\tStale\tStale %1\t\n", "has placeholders %1, the source none"),
            "too many cells": ("Sidebar\tHelp\ta\tb\tc\n", "found 5"),
        }
        for what, (row, message) in cases.items():
            with self.subTest(what):
                self.write("tables/shell.tsv", HEADER + ROWS + row)
                status, err = self.run_fill("--strict")
                self.assertEqual(status, 1)
                self.assertIn("shell.tsv:6", err)
                self.assertIn(message, err)

    def test_table_with_wrong_header_is_skipped(self):
        self.write("tables/shell.tsv", "context\tsource\tzh_CN\ten\n" + ROWS)
        status, err = self.run_fill()
        self.assertEqual(status, 0)
        self.assertIn("first line", err)
        en = translations(os.path.join(self.root, "Norvale_en.ts"))
        self.assertEqual(en[("Sidebar", "系统概览")], ("unfinished", ""))

    @unittest.skipUnless(os.environ.get("NORVALE_LUPDATE") and os.environ.get("NORVALE_LRELEASE"),
                         "the Qt tools are passed in by CTest")
    def test_lupdate_keeps_the_filled_catalogue_and_lrelease_compiles_it(self):
        with open(os.path.join(self.root, "a.cpp"), "w", encoding="utf-8") as f:
            f.write(SOURCE)
        catalogues = [os.path.join(self.root, f"Norvale_{lang}.ts") for lang in ("en", "zh_CN")]
        lupdate = [os.environ["NORVALE_LUPDATE"], "-no-obsolete", "-locations", "none",
                   os.path.join(self.root, "a.cpp"), "-ts", *catalogues]
        subprocess.run(lupdate, check=True, capture_output=True)
        self.write("tables/shell.tsv", HEADER + ROWS)
        self.run_fill()
        filled = [self.read(os.path.basename(c)) for c in catalogues]

        subprocess.run(lupdate, check=True, capture_output=True)
        self.assertEqual([self.read(os.path.basename(c)) for c in catalogues], filled)

        for catalogue, finished in zip(catalogues, (3, 3)):
            out = subprocess.run([os.environ["NORVALE_LRELEASE"], catalogue, "-qm", catalogue + ".qm"],
                                 check=True, capture_output=True, text=True).stdout
            self.assertIn(f"Generated {finished} translation(s) ({finished} finished and 0 unfinished)", out)


if __name__ == "__main__":
    unittest.main(verbosity=2)
