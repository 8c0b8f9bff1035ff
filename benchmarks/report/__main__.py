"""report FOLDER DATE LOAD: one table of all that the benchmarks wrote into the folder."""

import json
import pathlib
import sys

from machine import lines
from meanings import GROUPS, place_of, row_of
from sources import of_google, of_samples
from table import HEADINGS, TRIP_HEADINGS, markdown, measured_row, trip_aim, trip_heading, trip_rows


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


def sections(reports):
    """Pairs of a heading and a table, in the order of the groups."""
    ordered = sorted(measurements(reports), key=lambda measured: place_of(measured.key))
    found = [(measured, row_of(measured.key)) for measured in ordered]
    for group, title in {**GROUPS, "": "Others"}.items():
        rows = [measured_row(*pair) for pair in found if pair[1].group == group]
        if rows:
            yield title, markdown(HEADINGS, rows)
        if group == "trip":
            trips = [report for report in reports.values() if "played" in report]
            for report in sorted(trips, key=lambda trip: (trip.get("busy", 0), trip["period"])):
                yield f"{title}: {trip_heading(report)}", markdown(TRIP_HEADINGS, trip_rows(report)) + trip_aim(report)


def main(folder, date, load):
    reports = read(pathlib.Path(folder))
    real_time = next((report["realTime"] for report in reports.values() if "realTime" in report), None)
    print(markdown(("Machine", ""), lines(date, load, real_time)))
    for title, table in sections(reports):
        print(f"\n### {title}\n\n{table}")


if __name__ == "__main__":
    main(*sys.argv[1:])
