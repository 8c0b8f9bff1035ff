"""A source tree and its includes, and the tables of docs/architecture.md that say who may include whom."""

import re
from pathlib import Path

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
        return folder is not None and (is_below(target, folder) or self.folder_of(target) in self.allowed[folder])

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
