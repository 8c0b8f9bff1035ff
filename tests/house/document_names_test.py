#!/usr/bin/env python3
"""Shows that document_names.py misses what is not there, and only that."""

import tempfile
import unittest
from pathlib import Path

import document_names

TREE = {
    "CONTRIBUTING.md": "",
    "docs/decisions.md": "",
    "docs/architecture.md": "",
    "keys/Key.h": "#pragma once\n// onlySaid\nclass Key { void push(); };\nnamespace walks { int walk(int from); }\n",
    "keys/Key_press.cpp": 'void Key::push() {}\nconst char* option = "power";\n',
    "tests/CMakeLists.txt": "sorvane_test(test_key Key_press.cpp)\n",
}
THERE = (
    "keys",
    "keys/",
    "keys/Key.h",
    "keys/Key_*.cpp",
    "keys/Key_CONCERN.cpp",
    "Key_press.cpp",
    "Key",
    "push",
    "push()",
    "Key::push",
    "Key::push()",
    "walks::walk",
    "test_key",
    "--power",
    "--power=on",
    "build/anything/at_all",
    ":/Resources/nothing.png",
    "a command with blanks",
)
NOT_THERE = (
    "kays",
    "keys/Kay.h",
    "keys/Kay_*.cpp",
    "keys/Kay_CONCERN.cpp",
    "Kay_press.cpp",
    "pull",
    "pull()",
    "Key::pull",
    "Key::walk_on",
    "Kay::push",
    "walks::push_on",
    "onlySaid",
    "test_kay",
    "--powder",
)


class DocumentNames(unittest.TestCase):
    def missing(self, text, document="docs/architecture.md"):
        with tempfile.TemporaryDirectory() as folder:
            for path, content in {**TREE, document: text}.items():
                file = Path(folder) / path
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_text(content, encoding="utf-8")
            return [line.split(": ", 1)[1] for line in document_names.missing(folder)]

    def test_what_is_there_is_found(self):
        for name in THERE:
            with self.subTest(name=name):
                self.assertEqual(self.missing(f"See `{name}` there."), [])

    def test_what_is_not_there_is_missed(self):
        for name in NOT_THERE:
            with self.subTest(name=name):
                self.assertEqual(self.missing(f"See `{name}` there."), [name])

    def test_every_document_is_read(self):
        for document in document_names.DOCUMENTS:
            with self.subTest(document=document):
                self.assertEqual(self.missing("`pull`", document), ["pull"])

    def test_names_may_be_broken_over_lines(self):
        self.assertEqual(self.missing("`a command\nover lines` and `pull`"), ["pull"])

    def test_drawings_are_read(self):
        drawing = "```\n a key -> pushKey -> Key::push -> Key::pull\n```\n"
        self.assertEqual(self.missing(drawing), ["Key::pull", "pushKey"])


if __name__ == "__main__":
    unittest.main()
