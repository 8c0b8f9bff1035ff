"""report FOLDER DATE LOAD [DOCUMENT]: the tables of all that the benchmarks wrote into the folder, and into the document."""

import json
import pathlib
import sys

from document import filled
from machine import lines
from meanings import GROUPS, place_of, row_of
from sources import of_google, of_samples
from table import (COUNT_HEADINGS, HEADINGS, TRIP_HEADINGS, markdown, measured_row, trip_note, trip_heading,
                   trip_rows)


def read(folder):
    """The reports by their names; an empty or broken one is an error: a program did not come to its end."""
    return {file.stem: json.loads(file.read_text(encoding="utf-8")) for file in sorted(folder.glob("*.json"))}


def measurements(reports):
    found = []
    for name, report in reports.items():
        if "benchmarks" in report:
            found += of_google(name.split("-")[0], report)
        elif "samples" in report:
            found += of_samples(name.split("-")[0], report)
    return found


def trips(reports):
    found = [report for report in reports.values() if "played" in report]
    for report in sorted(found, key=lambda trip: (trip.get("busy", 0), trip["period"])):
        yield trip_heading(report), markdown(TRIP_HEADINGS, trip_rows(report)) + trip_note(report)


def sections(reports):
    """Pairs of a name and a table, in the order of the groups."""
    ordered = sorted(measurements(reports), key=lambda measured: place_of(measured.key))
    found = [(measured, row_of(measured.key)) for measured in ordered]
    for group, title in {**GROUPS, "": "Others"}.items():
        rows = [measured_row(*pair) for pair in found if pair[1].group == group]
        if rows:
            yield title, markdown(HEADINGS, rows)
        if group == "trip":
            yield from trips(reports)
        if group == "tests":
            yield from ((title, markdown(COUNT_HEADINGS, report["counts"])) for report in reports.values() if "counts" in report)


def main(folder, date, load, document=None):
    reports = read(pathlib.Path(folder))
    real_time = next((report["realTime"] for report in reports.values() if "realTime" in report), None)
    tables = {"Machine": markdown(("Machine", ""), lines(date, load, real_time)), **dict(sections(reports))}
    print("\n\n".join(f"### {title}\n\n{table}" for title, table in tables.items()))
    if document:
        page = pathlib.Path(document)
        page.write_text(filled(page.read_text(encoding="utf-8"), tables), encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
