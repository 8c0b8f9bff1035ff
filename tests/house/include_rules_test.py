#!/usr/bin/env python3
"""Shows that each of the rules in include_rules.py can be broken, on a little tree that breaks none."""

import tempfile
import unittest
from pathlib import Path

import include_rules

DOCUMENT = """# A tree

## Who may include whom

| Folder | May include |
|---|---|
| `low` | nothing |
| `high` | `low` |
| `tests` | `low`, `high` |

| Reaches up to | From | Why |
|---|---|---|
| `high/Window.h` | `low/tune.cpp` | the one window |
| `high/record.h` | `low` | a plain record |

## Something else

| Folder | May include |
|---|---|
| `low` | `high` |
"""

SOUND = {
    "docs/architecture.md": DOCUMENT,
    "low/tune.h": '#pragma once\n#include "high/record.h"\nint tune(const record& kept);\n',
    "low/tune.cpp": '#include "low/tune.h"\n#include "high/Window.h"\n#include <algorithm>\n'
    "int tune(const record& kept) { return std::max(kept.pitch, window()); }\n",
    "low/version.h.in": "#pragma once\n",
    "high/record.h": "#pragma once\nstruct record { int pitch = 0; };\n",
    "high/Window.h": "#pragma once\nint window();\n",
    "high/Window.cpp": '#include "high/Window.h"\n#include "low/version.h"\n#include "ui_Form.h"\nint window() { return 1; }\n',
    "high/Window_part.cpp": '#include "high/Window.h"\n#include <QLabel>\nint part() { return window(); }\n',
    "high/Form.ui": "<ui/>\n",
    "tests/a/Hand.h": "#pragma once\nint hand();\n",
    "tests/b/test_tune.cpp": '#include "Hand.h"\n#include "low/tune.h"\nint both = hand() + tune({});\n#include "test_tune.moc"\n',
}


def spoilt(path, before, after):
    text = SOUND.get(path, "")
    assert before in text, f"{path} does not hold {before}"
    return {path: text.replace(before, after, 1)}


FIRST = '#include "low/tune.h"\n'
# What breaks which rule, and the line that tells of it.
BREACHES = (
    (include_rules.homeless, {"new/lone.cpp": '#include "low/tune.h"\n'}, "new/lone.cpp"),
    (include_rules.homeless, spoilt("docs/architecture.md", "| `tests` |", "| `tests/b` |"), "tests/a/Hand.h"),
    (include_rules.forms, spoilt("high/Window.cpp", '"high/', '"'), 'high/Window.cpp: "Window.h"'),
    (include_rules.forms, spoilt("high/Window.cpp", '"high/', '"../high/'), 'high/Window.cpp: "../high/Window.h"'),
    (include_rules.forms, spoilt("low/tune.cpp", "<algorithm>", '"algorithm"'), 'low/tune.cpp: "algorithm"'),
    (include_rules.forms, spoilt("low/tune.cpp", '"high/Window.h"', "<high/Window.h>"), "low/tune.cpp: <high/Window.h>"),
    (include_rules.forms, spoilt("high/Window.cpp", "ui_Form", "ui_Farm"), 'high/Window.cpp: "ui_Farm.h"'),
    (include_rules.forms, spoilt("tests/b/test_tune.cpp", "_tune.moc", "_tone.moc"), 'tests/b/test_tune.cpp: "test_tone.moc"'),
    (include_rules.forms, {"tests/c/Hand.h": "#pragma once\n"}, 'tests/b/test_tune.cpp: "Hand.h"'),
    (include_rules.upward, spoilt("low/tune.h", "record.h", "Window.h"), "low/tune.h: high/Window.h"),
    (include_rules.upward, {"low/two.cpp": '#include "high/Window.h"\n'}, "low/two.cpp: high/Window.h"),
    (include_rules.upward, {"high/test.cpp": '#include "tests/a/Hand.h"\n'}, "high/test.cpp: tests/a/Hand.h"),
    (include_rules.idle_leaves, spoilt("low/tune.cpp", '#include "high/Window.h"\n', ""), "low/tune.cpp to high/Window.h"),
    (include_rules.broad_leaves, spoilt("docs/architecture.md", "`low/tune.cpp`", "`low/tune.h`"), "low/tune.h to high/Window.h"),
    (include_rules.broad_leaves, spoilt("docs/architecture.md", "`high/record.h`", "`high`"), "low to high"),
    (include_rules.cycles, spoilt("high/record.h", "once\n", 'once\n#include "low/tune.h"\n'), "high/record.h low/tune.h"),
    (include_rules.cycles, spoilt("high/Window.h", "once\n", 'once\n#include "high/Window.h"\n'), "high/Window.h"),
    (include_rules.twice, spoilt("low/tune.cpp", FIRST, FIRST + FIRST), "low/tune.cpp: low/tune.h"),
    (include_rules.not_first, spoilt("low/tune.cpp", FIRST, "#include <map>\n" + FIRST), "low/tune.cpp: low/tune.h"),
    (include_rules.not_first, spoilt("high/Window_part.cpp", "high/W", "low/tune.h"), "high/Window_part.cpp: high/Window.h"),
    (include_rules.unguarded, spoilt("high/record.h", "#pragma once", ""), "high/record.h"),
    (include_rules.unused, spoilt("low/tune.cpp", "std::max", "std::ax"), "low/tune.cpp: algorithm"),
    (include_rules.unused, spoilt("low/tune.cpp", "std::max", 'ax("std::max")/*max*/'), "low/tune.cpp: algorithm"),
    (include_rules.unused, spoilt("low/tune.cpp", "window()", "2"), "low/tune.cpp: high/Window.h"),
)


class IncludeRules(unittest.TestCase):
    def breaches(self, changes):
        with tempfile.TemporaryDirectory() as folder:
            for path, text in {**SOUND, **changes}.items():
                file = Path(folder) / path
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_text(text, encoding="utf-8")
            return dict(include_rules.breaches(folder))

    def test_a_sound_tree_breaks_none(self):
        self.assertEqual([lines for lines in self.breaches({}).values() if lines], [])

    def test_each_rule_can_be_broken(self):
        texts = {rule: text for text, rule in include_rules.RULES}
        self.assertEqual(set(texts), {rule for rule, _, _ in BREACHES})
        for rule, changes, line in BREACHES:
            with self.subTest(rule=rule.__name__, line=line):
                self.assertEqual(self.breaches(changes)[texts[rule]], [line])

    def test_what_is_not_named_may_be_used(self):
        derived = spoilt("high/Window.h", "int window();", "class Window : public QLabel {};")
        self.assertEqual(self.breaches(derived)["included and not used:"], [])

    def test_without_its_tables_nothing_is_held(self):
        for table in ("| Folder | May include |\n|---|---|\n| `low` | nothing |\n", "## Who may include whom"):
            with self.subTest(table=table), self.assertRaises(SystemExit):
                self.breaches(spoilt("docs/architecture.md", table, ""))


if __name__ == "__main__":
    unittest.main()
