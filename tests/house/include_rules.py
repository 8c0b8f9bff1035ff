#!/usr/bin/env python3
"""include_rules.py FOLDER: holds every #include of a source tree to the tables of docs/architecture.md.

Prints each breach; ends with 1 if any.
"""

import re
import sys
from pathlib import Path

import include_uses
from include_tree import DOCUMENT, Rules, Tree


def homeless(tree, rules):
    return [path for path in tree.texts if not rules.folder_of(path)]


def forms(tree, _):
    """Quotes and the path from the root for own headers, angle brackets for others."""
    names = {Path(header).name for header in tree.headers}
    for path, includes in tree.includes.items():
        for bracket, name in includes:
            if bracket == '"' and not tree.resolve(path, name):
                yield f'{path}: "{name}"'
            if bracket == "<" and (name in tree.headers or name in names):
                yield f"{path}: <{name}>"


def upward(tree, rules):
    for path in tree.texts:
        for target in tree.own(path):
            if not rules.allows(path, target) and not rules.leaves_for(path, target):
                yield f"{path}: {target}"


def idle_leaves(tree, rules):
    used = {
        leave
        for path in tree.texts
        for target in tree.own(path)
        if not rules.allows(path, target)
        for leave in rules.leaves_for(path, target)
    }
    return [f"{source} to {target}" for source, target in sorted(rules.leaves - used)]


def broad_leaves(_, rules):
    """Headers drag along what they reach: only sources get leave, and folders as a whole for a single header."""
    for source, target in rules.leaves:
        if not source.endswith(".cpp") and ("." in source or not target.endswith(".h")):
            yield f"{source} to {target}"


def cycles(tree, _):
    """Each header that leads back to itself, told once for each ring."""
    done, rings = set(), set()

    def walk(path, trail):
        if path in trail:
            rings.add(frozenset(trail[trail.index(path) :]))
        elif path not in done:
            for target in tree.own(path):
                if target in tree.headers:
                    walk(target, trail + [path])
            done.add(path)

    for header in sorted(tree.headers):
        walk(header, [])
    return sorted(" ".join(sorted(ring)) for ring in rings)


def twice(tree, _):
    for path, includes in tree.includes.items():
        names = [name for _, name in includes]
        yield from (f"{path}: {name}" for name in sorted(set(names)) if names.count(name) > 1)


def header_of(tree, path):
    """The header that a source makes true: its own, or that of the class of which it holds a part."""
    if path in tree.headers:
        return None
    stem = path[: -len(".cpp")]
    while stem + ".h" not in tree.headers and "_" in Path(stem).name:
        stem = stem.rpartition("_")[0]
    return stem + ".h" if stem + ".h" in tree.headers else None


def not_first(tree, _):
    """A header that its source reads first needs nothing before it. This is how most are held to stand alone."""
    for path in tree.texts:
        header = header_of(tree, path)
        if header and [name for _, name in tree.includes[path]][:1] not in ([header], [Path(header).name]):
            yield f"{path}: {header}"


def unguarded(tree, _):
    return [header for header in tree.headers if not re.search(r"^#pragma once$", tree.texts[header], re.MULTILINE)]


def unused(tree, _):
    """An own header that a header includes may be there for who includes that one."""
    for path, text in tree.texts.items():
        code = include_uses.code_of(text)
        for bracket, name in tree.includes[path]:
            target = tree.resolve(path, name) if bracket == '"' else None
            is_kept = path in tree.headers or target not in tree.headers or target == header_of(tree, path)
            if bracket == '"' and is_kept:
                continue
            if not include_uses.may_use(code, name, tree.texts.get(target)):
                yield f"{path}: {name}"


RULES = (
    ("files in a folder that the table does not know:", homeless),
    ("own headers are named in quotes by their paths from the root, others in angle brackets:", forms),
    ("includes that the table does not allow:", upward),
    ("leaves that nobody needs any more:", idle_leaves),
    ("leaves that are too broad:", broad_leaves),
    ("headers that include each other in a ring:", cycles),
    ("included twice:", twice),
    ("sources whose own header is not the first that they include:", not_first),
    ("headers without #pragma once:", unguarded),
    ("included and not used:", unused),
)


def breaches(root):
    rules = Rules((Path(root) / DOCUMENT).read_text(encoding="utf-8"))
    tree = Tree(root)
    return [(text, sorted(rule(tree, rules))) for text, rule in RULES]


def main(root):
    found = [(text, lines) for text, lines in breaches(root) if lines]
    for text, lines in found:
        print(text, *lines, sep="\n")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
