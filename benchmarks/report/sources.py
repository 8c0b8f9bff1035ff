"""Reads what the programs wrote: for each benchmark its key, a unit and the values of all repetitions."""

from collections import namedtuple

from statistics_of import nanoseconds

Measured = namedtuple("Measured", "key unit values error")


def of_google(program, report):
    """Google Benchmark's report: the repetitions, not their aggregates. Times in nanoseconds."""
    found = {}
    for run in report.get("benchmarks", []):
        if run.get("run_type") != "iteration":
            continue
        name = plain_name(run.get("run_name", run["name"]))
        measured = found.setdefault(name, Measured(f"{program}/{name}", "ns", [], []))
        if run.get("error_occurred"):
            measured.error.append(run.get("error_message", "failed"))
        else:
            clock = "real_time" if name.endswith("/real_time") else "cpu_time"
            measured.values.append(nanoseconds(run[clock], run["time_unit"]))
    return list(found.values())


def plain_name(name):
    """The benchmark's name without what only says how often it ran."""
    return "/".join(part for part in name.split("/") if not part.startswith(("iterations:", "repeats:", "min_time:")))


def of_samples(program, report):
    """Sorvane's own programs: {"samples": {name: {"unit": ..., "values": [...]}}}."""
    return [
        Measured(f"{program}/{name}", sample["unit"], sample["values"], [])
        for name, sample in report.get("samples", {}).items()
    ]
