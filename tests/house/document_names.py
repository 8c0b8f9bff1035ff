#!/usr/bin/env python3
"""document_names.py FOLDER: what the documents for developers name in backticks is in the tree.

Files and folders by their paths, files by their names, names of the code, options, tests and targets. Prints what is not
there; ends with 1 if anything. What is neither path nor name (a command with blanks, a key, a resource) is passed over.
"""

import re
import sys
from pathlib import Path

DOCUMENTS = ("CONTRIBUTING.md", "docs/architecture.md", "docs/decisions.md")
FENCE = re.compile(r"^```.*?^```", re.DOTALL | re.MULTILINE)
QUOTED = re.compile(r"`([^`]+)`")
PATH = re.compile(r"[\w.*@+-]+(/[\w.*@+-]+)+/?")
FILE = re.compile(r"[\w*-]+\.(cpp|h|py|sh|ui|json|md|qrc|txt)")
OPTION = re.compile(r"--([a-z-]+)(=\w+)?")
NAME = re.compile(r"(?:(\w+)::)?(\w+)(?:\(\))?")
STANDS_FOR = re.compile(r"_[A-Z]{2,}(?=\.)")  # i18n/sorvane_LANGUAGE.ts stands for each of them
WORD = re.compile(r"\w+")
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)
# In a drawing whatever is written as code is: signalKey, connecter::mycallback.
DRAWN = re.compile(r"\b(?:\w+::)?[a-z]+[A-Z]\w+\b|\b\w+::\w+\b")
SCOPE = r"\b(?:class|struct|namespace|enum(?: class)?)\s+%s\b"
CODE = (".cpp", ".h", ".ui")
BUILD = ("CMakeLists.txt", "CMakePresets.json")


class Tree:
    def __init__(self, root):
        self.root = Path(root)
        tops = [top for top in self.root.iterdir() if not re.match(r"\.git$|build", top.name)]
        found = tops + [path for top in tops if top.is_dir() for path in top.rglob("*")]
        files = [path for path in found if path.is_file()]
        self.names = {path.name for path in files}
        kept = [path for path in files if path.suffix in CODE or path.name in BUILD]
        self.code = {path: COMMENT.sub(" ", path.read_text(encoding="utf-8", errors="replace")) for path in kept}
        self.words = set().union(*(WORD.findall(text) for text in self.code.values()), (path.stem for path in found))

    def has_path(self, path):
        return any(self.root.glob(STANDS_FOR.sub("_*", path.rstrip("/"))))

    def has_file(self, name):
        return any(Path(known).match(name) for known in self.names)

    def has_option(self, option):
        return any(f'"{option}"' in text for text in self.code.values())

    def has_member(self, scope, name):
        """A file that declares the scope speaks of the name."""
        declared, member = re.compile(SCOPE % scope), re.compile(rf"\b{name}\b")
        return any(declared.search(text) and member.search(text) for text in self.code.values())


def is_missing(tree, named):
    if named.startswith(("build/", ":/", "~", "/")):
        return False  # made by a build, a resource, a user's file
    if PATH.fullmatch(named):
        return not tree.has_path(named)
    if FILE.fullmatch(named):
        return not tree.has_file(named)
    if option := OPTION.fullmatch(named):
        return not tree.has_option(option[1])
    if name := NAME.fullmatch(named):
        return not tree.has_member(name[1], name[2]) if name[1] else name[2] not in tree.words
    return False


def named_in(text):
    drawn = [name for drawing in FENCE.findall(text) for name in DRAWN.findall(drawing)]
    quoted = [" ".join(name.split()) for name in QUOTED.findall(FENCE.sub("", text))]
    return sorted(set(drawn + quoted))


def missing(root):
    tree = Tree(root)
    for document in DOCUMENTS:
        for named in named_in((Path(root) / document).read_text(encoding="utf-8")):
            if is_missing(tree, named):
                yield f"{document}: {named}"


def main(root):
    lines = list(missing(root))
    if lines:
        print("named in a document and not in the tree:", *lines, sep="\n")
    return 1 if lines else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
