#!/usr/bin/env python3
"""include_rules.py FOLDER: holds every #include of a source tree to the tables of docs/architecture.md.

Prints each breach; ends with 1 if any. The tables are the ones under the heading of HEADING: which folder may include
which, and which single files may reach beyond that.
"""

import re
import sys
from pathlib import Path

import include_uses

DOCUMENT = "docs/architecture.md"
HEADING = "## Who may include whom"
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">]', re.MULTILINE)
NAMED = re.compile(r"`([^`]+)`")
# Where headers are on the search path by their bare names, so that a fixture may move between folders.
BARE_NAMES = ("tests", "benchmarks")


def tables_under(text, heading):
    """The Markdown tables below a heading and above the next: lists of rows, each a list of cells."""
    tables, inside, fresh = [], False, True
    for line in text.splitlines():
        if line.startswith("## "):
            inside = line == heading
        if not inside or not line.startswith("|"):
            fresh = True
            continue
        if fresh:
            tables.append([])
        fresh = False
        tables[-1].append([cell.strip() for cell in line.strip("|").split("|")])
    return [rows[2:] for rows in tables]  # behind the titles and their rule


def is_below(path, folder):
    return path == folder or path.startswith(folder + "/")


class Rules:
    """What the document allows: `allowed` by folder, `leaves` as pairs of an includer and what it reaches."""

    def __init__(self, text):
        tables = tables_under(text, HEADING)
        if len(tables) != 2 or not all(tables):
            raise SystemExit(f"{DOCUMENT}: no two tables under '{HEADING}'")
        self.allowed = {NAMED.findall(row[0])[0]: NAMED.findall(row[1]) for row in tables[0]}
        self.leaves = {
            (source, target)
            for row in tables[1]
            for target in NAMED.findall(row[0])
            for source in NAMED.findall(row[1])
        }

    def folder_of(self, path):
        return max((folder for folder in self.allowed if is_below(path, folder)), key=len, default=None)

    def allows(self, path, target):
        folder = self.folder_of(path)
        return is_below(target, folder) or self.folder_of(target) in self.allowed[folder]

    def leaves_for(self, path, target):
        return {leave for leave in self.leaves if is_below(path, leave[0]) and is_below(target, leave[1])}


class Tree:
    """The sources and headers of a folder, and what each includes."""

    def __init__(self, root):
        self.root = Path(root)
        tops = [top for top in self.root.iterdir() if top.is_dir() and not re.match(r"\.|build", top.name)]
        found = [path for top in tops for path in top.rglob("*") if path.suffix in (".cpp", ".h")]
        self.texts = {str(path.relative_to(self.root)): path.read_text(encoding="utf-8") for path in sorted(found)}
        self.headers = {path for path in self.texts if path.endswith(".h")}
        self.includes = {path: INCLUDE.findall(text) for path, text in self.texts.items()}

    def by_bare_name(self, path, name):
        beside = str(Path(path).parent / name)
        if beside in self.headers:
            return [beside]
        return [header for header in self.headers if is_below(header, BARE_NAMES[0]) and Path(header).name == name]

    def resolve(self, path, name):
        """The file that an include in quotes means, or None. A generated one is the file that it is made from."""
        if name in self.headers:
            return name
        form = re.sub(r"^ui_(\w+)\.h$", r"\1.ui", name)
        for made_from in [name + ".in"] + ([str(Path(path).parent / form)] if form != name else []):
            if (self.root / made_from).is_file():
                return made_from
        if name == Path(path).stem + ".moc":
            return path
        if any(is_below(path, folder) for folder in BARE_NAMES):
            bare = self.by_bare_name(path, name)
            return bare[0] if len(bare) == 1 else None
        return None

    def own(self, path):
        """The project's files that a file includes."""
        names = [name for bracket, name in self.includes[path] if bracket == '"' and not name.endswith(".moc")]
        return [target for target in (self.resolve(path, name) for name in names) if target]


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
