"""What the benchmarks are called in the table, and what each means to a player. A row for every one."""

from collections import namedtuple

Row = namedtuple("Row", "group key what meaning")

GROUPS = {
    "notes": "Note road",
    "trip": "Round trip side by side",
    "recall": "Recall and remap",
    "files": "Files",
    "start": "Start and memory",
    "log": "Logging",
    "tests": "Tests",
}

# key: program and benchmark; times are CPU time but where a benchmark's own name ends with real_time.
ROWS = (
    Row("notes", "keys/notePair", "press and release of a mapped note",
        "Sorvane's own work from the message that comes to the two that go, pictures included"),
    Row("notes", "keys/notePairWithoutPresets", "the same without presets",
        "what presets add to each note: the difference to the row above"),
    Row("notes", "library/notePairLibraryClosed", "press and release, all repainted, library closed",
        "with queued events, timers and the painting behind the note"),
    Row("notes", "library/notePairLibraryOpen", "press and release, all repainted, library open",
        "an open library may not slow the hand"),
    Row("notes", "keys/passThrough", "a controller passed through",
        "a pedal or a wheel: one message in, one out"),
    Row("recall", "keys/recall", "a black key recalls a preset",
        "tonic and scale change; from here the next note sounds by the new map"),
    Row("recall", "keys/remap", "all keys mapped anew", "the part of a recall that turns the selectors into a map"),
    Row("recall", "keys/anchorStep", "one key's step of an anchor drag",
        "remap and numbers while a hand drags; 16 ms would be one picture of a screen"),
    Row("recall", "library/recallLibraryOpen/real_time", "a recall until the library's page follows",
        "contains the rest that the browser takes on purpose, so that a run of recalls is not slowed"),
    Row("recall", "library/openLibrary", "the library opens", "lists, page and painting"),
    Row("recall", "library/updateOfManyScales", "a change in a category of 1,000 scales",
        "lists and page after an edit"),
    Row("files", "files/exportFactory/real_time", "write the factory library", "to a disk, as at the end of a session"),
    Row("files", "files/importFactory/real_time", "read the factory library", "up to the window that shows it"),
    Row("files", "files/exportTenThousandScales/real_time", "write 10,000 scales", "a library far beyond any use"),
    Row("files", "files/importTenThousandScales/real_time", "read 10,000 scales", "up to the window that shows it"),
    Row("start", "start/firstFrame", "start to the first painted frame", "the wait between the command and the window"),
    Row("start", "start/resident", "resident memory with the window, at rest",
        "all pages in memory, shared libraries included"),
    Row("start", "start/proportional", "its proportional share", "pages shared with other programs divided among them"),
    Row("start", "start/residentHeadless", "resident memory without a window", "`--headless`"),
    Row("start", "start/wakeUps", "wake-ups in 10 s of rest", "nothing may tick while nobody plays"),
    Row("log", "logging/noObserver", "an entry nobody reads", "what every note pays without a log"),
    Row("log", "logging/noObserverByStream", "the same, put together by <<", "as most of the program writes it"),
    Row("log", "logging/fileBelowItsLevel", "an entry below the file's level", "`--log` with a high level"),
    Row("log", "logging/file", "an entry written to a file", "`--log=all`: the price of one line"),
    Row("log", "logging/fileThatIsRotated", "the same with rotated files", "with backups made on the way"),
)

LANES = {
    "loop": "the player alone, its output to its input",
    "rtmidi": "a bare RtMidi pass-through",
    "sorvane-off": "Sorvane, power off, no window",
    "sorvane-headless": "Sorvane maps, no window",
    "sorvane-window": "Sorvane maps, with its window",
    "plugin": "LV2 key mapper in a plug-in host, same map",
}


def row_of(key):
    """The row of a benchmark; one that nobody has described yet shows under its own name."""
    for row in ROWS:
        if row.key == key:
            return row
    return Row("", key, key, "")


def place_of(key):
    """Rows stand in the order of this file, strangers behind them by name."""
    return next((place for place, row in enumerate(ROWS) if row.key == key), len(ROWS)), key
