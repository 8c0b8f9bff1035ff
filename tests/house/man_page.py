#!/usr/bin/env python3
"""man_page.py PROGRAM PAGE: the man page is well formed and tells of the options what the program's --help tells.

Both must have the same options in the same order, with the same names and values; the page's text begins with the help's,
word for word, and may go on. Prints each breach; ends with 1 if any."""

import os
import re
import subprocess
import sys

WIDE = "-rLL=4000n"  # each paragraph in one line
FEWEST_OPTIONS = 10


def output(*command):
    run = subprocess.run(command, capture_output=True, text=True, check=False, env={**os.environ, "COLUMNS": "80"})
    return run.stdout, [line for line in run.stderr.splitlines() if line]


def words(text):
    return " ".join(text.replace("\u2019", "'").replace("\u2010", "-").split())


def entry(names, text):
    """The names and the value of an option, however help and page mark it, and what is said of it."""
    names = re.sub(r"[<>\[\]=]", " ", names)
    return words(names), words(text)


def help_entries(program):
    text, _ = output(program, "--help")
    entries = []
    for line in text[text.index("\nOptions:") :].splitlines():
        begin = re.match(r"  (\S.*?)(?:  +(\S.*))?$", line)
        if begin:
            entries.append([begin[1], begin[2] or ""])
        elif line.startswith("   ") and entries:
            entries[-1][1] += " " + line
    return [entry(*each) for each in entries]


def page_entries(page):
    text, _ = output("groff", "-man", "-Tutf8", "-P-cbou", WIDE, page)
    options = re.search(r"^OPTIONS$(.*?)^\S", text, re.S | re.M)[1]
    return [entry(*each) for each in re.findall(r"^ {7}(\S.*)\n {14}(\S.*)$", options, re.M)]


def differences(helped, told):
    if len(helped) < FEWEST_OPTIONS:
        yield f"--help: {len(helped)} options only"
    if [names for names, _ in helped] != [names for names, _ in told]:
        yield "options of --help: " + "; ".join(names for names, _ in helped)
        yield "options of the man page: " + "; ".join(names for names, _ in told)
    texts = dict(told)
    for names, text in helped:
        if not text or not (texts.get(names, "") + " ").startswith(text + " "):
            yield f"{names}\n  --help: {text}\n  page:   {texts.get(names, '')}"


def malformed(page):
    checks = (
        ("mandoc", "-Tlint", page),
        ("groff", "-man", "-Tutf8", "-ww", "-z", page),
        ("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", page),
    )
    for check in checks:
        printed, complaints = output(*check)
        yield from complaints + (printed.splitlines() if check[0] == "mandoc" else [])
    shown, _ = output("man", "-P", "cat", "-l", page)
    if "SORVANE(1)" not in shown:
        yield "man does not show the page"


def main(program, page):
    breaches = list(differences(help_entries(program), page_entries(page))) + list(malformed(page))
    version = output(program, "--version")[0].strip()
    with open(page, encoding="utf-8") as file:
        if f'"{version}"' not in file.readline():
            breaches.append(f"the page is not of {version}")
    print("\n".join(breaches) or "as the program")
    return 1 if breaches else 0


sys.exit(main(*sys.argv[1:]))
