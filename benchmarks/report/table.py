"""Tables in Markdown, which are as easy to read as they are."""

from meanings import LANES
from round_trip import above, counts, summary, times
from statistics_of import deviation, median, percentile, readable_unit, three_digits

HEADINGS = ("What", "Median", "Spread", "p95", "Unit", "Repeats", "What it means")
COUNT_HEADINGS = ("What", "How many")
TRIP_HEADINGS = ("Way", "p50", "p95", "p99", "Longest", "Chord p50", "Chord longest", "Flood p50", "Flood longest",
                 "Sent", "Lost", "Stray")


def escaped(cell):
    return str(cell).replace("|", "\\|").replace("\n", " ")


def markdown(headings, rows):
    """All columns as wide as their widest cell."""
    table = [[escaped(cell) for cell in row] for row in (headings, *rows)]
    widths = [max(len(row[i]) for row in table) for i in range(len(headings))]
    padded = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |" for row in table]
    return "\n".join([padded[0], "|" + "|".join("-" * (width + 2) for width in widths) + "|", *padded[1:]])


def measured_row(measured, row):
    """One line of a group's table; what failed says so instead of figures."""
    if measured.error or not measured.values:
        return (row.what, "failed" if measured.error else "–", "–", "–", "", 0, "; ".join(measured.error) or row.meaning)
    unit, size = (measured.unit, 1) if measured.unit != "ns" else readable_unit(median(measured.values))
    figures = (median(measured.values), deviation(measured.values), percentile(measured.values, 0.95))
    shown = [three_digits(figure / size) for figure in figures]
    return (row.what, *shown, unit, len(measured.values), row.meaning)


def trip_row(name, lane):
    figures = times(lane, "stream", 0.5, 0.95, 0.99, 1) + times(lane, "chords", 0.5, 1) + times(lane, "flood", 0.5, 1)
    return (LANES.get(name, name), *map(three_digits, figures), *(counts(lane, of) for of in ("sent", "lost", "stray")))


def trip_rows(report):
    lanes = summary(report)
    shown = [name for name in LANES if name in lanes] + [name for name in lanes if name not in LANES]
    missing = [(f"{LANES.get(name, name)}: not installed", *["–"] * (len(TRIP_HEADINGS) - 1))
               for name in report.get("missing", [])]
    return [trip_row(name, lanes[name]) for name in shown] + missing


def trip_note(report):
    """How to read the table, and what Sorvane costs over the least that a program on its library can do."""
    period = report["period"] * 1000 / report["rate"]
    busy = f", beside {report['busy']} busy threads" if report.get("busy") else ""
    text = f"\n\nMilliseconds, at periods of {period:.2f}{busy}; counts of stream, chords, flood."
    periods = above(summary(report), "sorvane-headless", "rtmidi", period)
    if periods is None or None in periods:
        return text
    return text + f" Sorvane's map above the pass-through, in periods: p50 {periods[0]:+.2f}, p99 {periods[1]:+.2f}."


def trip_heading(report):
    """Nothing that differs between machines: documents name their tables so."""
    busy = ", beside busy threads" if report.get("busy") else ""
    return f"Round trip side by side, periods of {report['period']} frames{busy}"
