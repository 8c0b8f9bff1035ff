"""count_tests BUILD_FOLDER FILE: how many tests there are and of which kinds, as ctest and the programs themselves say."""

import json
import os
import pathlib
import subprocess
import sys

KINDS = {"e2e": "of these with real windows, keys and MIDI services (`-L e2e`)",
         "alsa": "of these on a real ALSA sequencer (`-L alsa`)",
         "golden": "of these against committed pictures (`-L golden`)"}


def labels(test):
    return next((entry["value"] for entry in test.get("properties", []) if entry["name"] == "LABELS"), [])


def program_of(test):
    """The Qt Test program that a test runs, maybe behind a wrapper; None for a script. ctest names no program not built."""
    words = [pathlib.PurePath(word) for word in test.get("command", [])]
    return next((str(word) for word in words if word.name.startswith(("test_", "e2e_")) and not word.suffix), None)


def counts(tests, functions_of):
    """Pairs of what and how many. functions_of(program) gives the names of its test functions, None if it is not there."""
    programs = {program_of(test) for test in tests} - {None}
    found = [functions for functions in map(functions_of, sorted(programs)) if functions is not None]
    missing = sum(1 for test in tests if not test.get("command")) + len(programs) - len(found)
    rows = [("tests that ctest runs", len(tests))]
    rows += [(text, sum(1 for test in tests if kind in labels(test))) for kind, text in KINDS.items()]
    rows.append(("test programs", len(found)))
    rows.append(("test functions in them, each for one row of data or many", sum(map(len, found))))
    return rows + ([("programs that are not built, and not counted", missing)] if missing else [])


def said_functions(program):
    """What a Qt Test program says of itself; None if it is not there."""
    if not os.path.exists(program):
        return None
    done = subprocess.run([program, "-functions"], capture_output=True, text=True, timeout=60, check=False,
                          env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    return [line for line in done.stdout.split("\n") if line.endswith("()")]


def main(build, file):
    said = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], capture_output=True, text=True, check=True)
    shown = json.loads(said.stdout[said.stdout.index("{"):])
    rows = counts(shown["tests"], said_functions)
    pathlib.Path(file).write_text(json.dumps({"counts": rows}), encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
