#!/usr/bin/env python3
"""translations.py FOLDER: each translation in FOLDER/i18n has exactly the texts of the sources, all of them finished, and keeps
what a program reads in them. Prints each breach; ends with 1 if any."""

import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as Xml
from pathlib import Path

FEWEST_TEXTS = 100
SAME_IN_ALL = {"User", "%1 (%2 %3)"}  # files hold the one and are searched for it; the other has no word

# What a text and its translation must have in common, by its name.
KEPT = {
    "place markers": lambda text: sorted(re.findall(r"%(?:L?\d+|n)", text)),
    "tags": lambda text: re.findall(r"<[^>]+>", text),
    "accelerators": lambda text: len(re.findall(r"&(?!&|\w+;)", text.replace("&&", ""))),
    "two ampersands": lambda text: text.count("&&"),
    "dots at the end": lambda text: text.endswith("..."),
    "colon or full stop at the end": lambda text: re.search(r"[:.?]?\s*$", re.sub(r"<[^>]+>", "", text))[0],
    "blanks at the ends": lambda text: (text[: len(text) - len(text.lstrip())], text[len(text.rstrip()) :]),
    "option names": lambda text: sorted(re.findall(r"--[a-z-]+(?:=\w+)?|[A-Z]+_[A-Z_]+", text)),
}


def messages(path):
    """The messages of a file by context, source and comment."""
    found = {}
    for context in Xml.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment") or "")
            found[key] = message
    return found


def of_sources(root, path):
    """The same file as the sources want it."""
    with tempfile.TemporaryDirectory() as folder:
        copy = Path(folder) / path.name
        shutil.copy(path, copy)
        subprocess.run([root / "scripts/translations", copy], check=True)
        return messages(copy)


def texts_of(message):
    translation = message.find("translation")
    forms = translation.findall("numerusform")
    return [form.text or "" for form in forms] if forms else [translation.text or ""]


def unlike(source, text):
    if source in SAME_IN_ALL and text != source:
        yield f"is not {source}"
    for name, of in KEPT.items():
        if of(source) != of(text):
            yield f"{name}: {of(source)}, {of(text)}"


def breaches_of(root, path):
    told, wanted = messages(path), of_sources(root, path)
    if len(wanted) < FEWEST_TEXTS:
        yield f"{len(wanted)} texts only are found in the sources"
    yield from (f"missing: {key}" for key in wanted.keys() - told.keys())
    yield from (f"in no source: {key}" for key in told.keys() - wanted.keys())
    for key, message in told.items():
        state = message.find("translation").get("type")
        if state:
            yield f"{state}: {key}"
        if message.get("numerus") == "yes" and len(message.findall("translation/numerusform")) < 2:
            yield f"a plural is missing: {key}"
        for text in texts_of(message):
            if not text:
                yield f"empty: {key}"
            elif not key[1].startswith(":/"):
                yield from (f"{what}: {key}: {text}" for what in unlike(key[1], text))
            elif not (root / "i18n" / Path(text).name).is_file():
                yield f"no such page: {text}"


def main(folder):
    root = Path(folder).resolve()
    files = sorted(root.glob("i18n/*.ts"))
    breaches = [f"{path.name}: {breach}" for path in files for breach in breaches_of(root, path)]
    print("\n".join(breaches) or f"complete: {', '.join(path.name for path in files)}")
    return 1 if breaches or not files else 0


sys.exit(main(sys.argv[1]))
