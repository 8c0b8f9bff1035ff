"""Figures of many values: percentiles, the median and how far from it the values lie, units to read."""

UNITS = (("ns", 1.0), ("µs", 1e3), ("ms", 1e6), ("s", 1e9))


def percentile(values, share):
    """The least value that so great a share of all does not exceed; None of nothing."""
    if not 0 <= share <= 1:
        raise ValueError(f"a share lies between 0 and 1, not at {share}")
    ordered = sorted(values)
    if not ordered:
        return None
    rank = -(-len(ordered) * round(share * 1000) // 1000)
    return ordered[max(rank, 1) - 1]


def median(values):
    """The middle of the values, or the mean of the two middle ones; None of nothing."""
    ordered = sorted(values)
    if not ordered:
        return None
    half = len(ordered) // 2
    return ordered[half] if len(ordered) % 2 else (ordered[half - 1] + ordered[half]) / 2


def deviation(values):
    """The median distance from the median, which one bad run does not move; None of nothing."""
    middle = median(values)
    return None if middle is None else median(abs(value - middle) for value in values)


def nanoseconds(value, unit):
    """A time in a unit of the table, or in Google Benchmark's spelling of it."""
    return value * dict(UNITS)["µs" if unit == "us" else unit]


def readable_unit(value):
    """The largest unit in which so many nanoseconds are at least one; the smallest of all otherwise."""
    fitting = [unit for unit in UNITS if abs(value) >= unit[1]]
    return fitting[-1] if fitting else UNITS[0]


def three_digits(value):
    """Three digits that count, all digits of larger numbers, two places of smaller ones; a dash for what there is not."""
    if value is None:
        return "–"
    if 0 < abs(value) < 0.005:
        return "<0.01"
    for limit, places in ((100, 0), (10, 1)):
        if abs(value) >= limit:
            return f"{value:.{places}f}"
    return f"{value:.2f}" if value else "0"
