"""What the benchmarks' report makes of values, of messages, and of what is not there."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

REPORT = pathlib.Path(__file__).resolve().parents[2] / "benchmarks" / "report"
sys.path.insert(0, str(REPORT))
sys.dont_write_bytecode = True

# The folder stands on the path from here on.
from count_tests import counts as counts_of_tests, program_of  # noqa: E402
from document import filled  # noqa: E402
from round_trip import above, counts, last_of_chords, match, summary, times  # noqa: E402
from sources import Measured, of_google, of_samples  # noqa: E402
from meanings import GROUPS, ROWS, row_of  # noqa: E402
import statistics_of  # noqa: E402
import table  # noqa: E402


class Statistics(unittest.TestCase):
    def test_a_percentile_is_one_of_the_values_whatever_their_order(self):
        values = list(range(100, 0, -1))
        for share, expected in ((0, 1), (0.01, 1), (0.5, 50), (0.95, 95), (0.99, 99), (1, 100)):
            self.assertEqual(statistics_of.percentile(values, share), expected)

    def test_a_percentile_of_few_values_leans_to_the_larger(self):
        self.assertEqual(statistics_of.percentile([7], 0.01), 7)
        self.assertEqual(statistics_of.percentile([1, 2, 3], 0.95), 3)
        self.assertEqual(statistics_of.percentile([1, 2, 3], 0.34), 2)

    def test_a_share_that_is_none_is_refused(self):
        for share in (-0.1, 1.1, 95):
            self.assertRaises(ValueError, statistics_of.percentile, [1], share)

    def test_nothing_has_no_figures(self):
        self.assertIsNone(statistics_of.percentile([], 0.5))
        self.assertIsNone(statistics_of.median([]))
        self.assertIsNone(statistics_of.deviation([]))

    def test_one_bad_run_moves_neither_median_nor_deviation(self):
        self.assertEqual(statistics_of.median([4, 1, 3, 2]), 2.5)
        self.assertEqual(statistics_of.median([10, 12, 11, 13, 9000]), 12)
        self.assertEqual(statistics_of.deviation([10, 12, 11, 13, 9000]), 1)

    def test_units_are_the_largest_that_fit(self):
        for value, unit in ((0, "ns"), (0.4, "ns"), (999, "ns"), (1000, "µs"), (2.5e6, "ms"), (1e9, "s"), (1e12, "s")):
            self.assertEqual(statistics_of.readable_unit(value)[0], unit)
        for unit, size in (("ns", 1), ("us", 1e3), ("ms", 1e6), ("s", 1e9)):
            self.assertEqual(statistics_of.nanoseconds(2, unit), 2 * size)

    def test_three_digits(self):
        for value, text in ((None, "–"), (0, "0"), (1234.5, "1234"), (12.34, "12.3"), (1.234, "1.23"), (0.01234, "0.01"),
                            (0.001, "<0.01"), (-0.5, "-0.50")):
            self.assertEqual(statistics_of.three_digits(value), text)


ON, OFF = 0x90, 0x80


class RoundTrip(unittest.TestCase):
    sent = [[0, ON, 60, 1], [100, OFF, 60, 0], [200, ON, 62, 2], [300, OFF, 62, 0]]

    def test_each_message_is_as_long_away_as_its_frames_say(self):
        back = [[10, ON, 60, 1], [120, OFF, 60, 0], [200, ON, 62, 2], [555, OFF, 62, 0]]
        self.assertEqual(match(self.sent, back), ([10, 20, 0, 255], 0, 0))

    def test_a_lost_message_leaves_those_behind_it_as_they_are(self):
        back = [[10, ON, 60, 1], [220, ON, 62, 2], [320, OFF, 62, 0]]
        self.assertEqual(match(self.sent, back), ([10, None, 20, 20], 1, 0))

    def test_what_nobody_sent_and_what_comes_twice_is_stray(self):
        back = [[10, ON, 60, 1], [11, ON, 60, 1], [12, ON, 99, 7], [120, OFF, 60, 0]]
        self.assertEqual(match(self.sent, back), ([10, 20, None, None], 2, 2))

    def test_nothing_comes_back_before_it_was_sent(self):
        self.assertEqual(match(self.sent, [[150, ON, 62, 2]]), ([None] * 4, 4, 1))

    def test_nothing_sent_nothing_back(self):
        self.assertEqual(match([], []), ([], 0, 0))
        self.assertEqual(match(self.sent, []).lost, 4)

    def test_a_chord_is_as_late_as_its_last_note_and_counts_if_it_is_whole(self):
        self.assertEqual(last_of_chords([*range(10), *[5] * 9, None, *[7] * 10, 1, 2]), [9, 7])

    def test_rounds_of_a_lane_are_taken_together_in_milliseconds(self):
        played = [{"lane": "loop", "piece": "stream", "due": 5, "sent": self.sent, "back": [[48, ON, 60, 1]]},
                  {"lane": "loop", "piece": "stream", "due": 4, "sent": self.sent, "back": [[96, ON, 60, 1]]}]
        lane = summary({"rate": 48000, "played": played})["loop"]
        self.assertEqual(lane["stream"], {"times": [1, 2], "sent": 9, "lost": 7, "stray": 0})
        self.assertEqual(counts(lane, "lost"), "7, –, –")
        self.assertEqual(times(lane, "chords", 0.5, 1), [None, None])

    def test_what_a_lane_costs_above_another_is_counted_in_periods(self):
        lanes = {"a": {"stream": {"times": [4, 6]}}, "b": {"stream": {"times": [2, 2]}}, "none": {}}
        self.assertEqual(above(lanes, "a", "b", 2), [1, 2])
        self.assertEqual(above(lanes, "a", "none", 2), [None, None])
        self.assertIsNone(above(lanes, "a", "nobody", 2))


def run(name, real, cpu, unit="ns", **more):
    return {"name": name, "run_name": name, "run_type": "iteration", "real_time": real, "cpu_time": cpu,
            "time_unit": unit, **more}


class Sources(unittest.TestCase):
    def test_repetitions_are_one_benchmark_and_aggregates_are_none(self):
        runs = [run("recall/iterations:500", 5, 3), run("recall/iterations:500", 5, 4),
                {**run("recall/iterations:500_mean", 5, 3.5), "run_type": "aggregate"}]
        self.assertEqual(of_google("keys", {"benchmarks": runs}), [Measured("keys/recall", "ns", [3, 4], [])])

    def test_who_asks_for_real_time_gets_it_in_nanoseconds(self):
        measured = of_google("files", {"benchmarks": [run("read/real_time", 2, 1, "ms")]})
        self.assertEqual(measured, [Measured("files/read/real_time", "ns", [2e6], [])])

    def test_an_error_is_kept_and_counts_as_no_value(self):
        measured = of_google("keys", {"benchmarks": [run("a", 0, 0, error_occurred=True, error_message="why")]})
        self.assertEqual(measured, [Measured("keys/a", "ns", [], ["why"])])

    def test_samples(self):
        report = {"samples": {"resident": {"unit": "MiB", "values": [1, 2]}}}
        self.assertEqual(of_samples("start", report), [Measured("start/resident", "MiB", [1, 2], [])])

    def test_no_benchmarks(self):
        self.assertEqual(of_google("keys", {}), [])
        self.assertEqual(of_samples("start", {}), [])


class Table(unittest.TestCase):
    def test_every_benchmark_of_the_tree_has_a_row_and_every_row_a_benchmark(self):
        rows = {row.key.split("/")[1] for row in ROWS if not row.key.startswith("start/")}
        sources = "\n".join(path.read_text() for path in REPORT.parent.glob("bench_*.cpp"))
        self.assertEqual({name.split(")")[0] for name in sources.split("BENCHMARK(")[1:]}, rows)

    def test_one_unit_for_a_row_by_its_median(self):
        cells = table.measured_row(Measured("keys/recall", "ns", [900, 1500, 2000], []), row_of("keys/recall"))
        self.assertEqual(cells[1:6], ("1.50", "0.50", "2.00", "µs", 3))

    def test_a_failure_shows_no_figures(self):
        cells = table.measured_row(Measured("keys/recall", "ns", [1], ["broken"]), row_of("keys/recall"))
        self.assertEqual((cells[1], cells[-1]), ("failed", "broken"))
        self.assertEqual(table.measured_row(Measured("new/one", "ns", [], []), row_of("new/one"))[:2], ("new/one", "–"))

    def test_markdown_has_a_line_a_row_and_no_cell_breaks_it(self):
        lines = table.markdown(("a", "b"), [("1|2", "x\ny"), ("3", "long")]).split("\n")
        self.assertEqual(lines, ["| a    | b    |", "|------|------|", "| 1\\|2 | x y  |", "| 3    | long |"])

    def test_a_lane_that_is_not_installed_is_named_and_a_lost_one_has_no_times(self):
        played = [{"lane": "loop", "piece": "stream", "due": 1, "sent": [[0, ON, 60, 1]], "back": []}]
        rows = table.trip_rows({"period": 128, "rate": 48000, "played": played, "missing": ["plugin"]})
        self.assertEqual([len(row) for row in rows], [len(table.TRIP_HEADINGS)] * 2)
        self.assertEqual(rows[0][1:], (*["–"] * 8, "1, –, –", "1, –, –", "0, –, –"))
        self.assertIn("not installed", rows[1][0])


class Document(unittest.TestCase):
    text = "a\n<!-- figures: one -->\nold\nolder\n<!-- end of figures -->\nb\n<!-- figures: two -->\n<!-- end of figures -->\n"

    def test_only_what_stands_between_the_marks_of_a_table_changes(self):
        once = filled(self.text, {"one": "| 1 \\1 |"})
        self.assertEqual(once, self.text.replace("old\nolder", "| 1 \\1 |"))
        self.assertEqual(filled(once, {"one": "| 1 \\1 |"}), once)
        self.assertEqual(filled(self.text, {}), self.text)

    def test_an_empty_place_is_filled(self):
        self.assertIn("b\n<!-- figures: two -->\nnew\n<!-- end", filled(self.text, {"two": "new"}))

    def test_a_table_without_a_place_is_an_error(self):
        self.assertRaises(ValueError, filled, self.text, {"three": "new"})

    def test_the_page_of_figures_has_a_place_for_every_table(self):
        page = (REPORT.parents[1] / "docs" / "quality.md").read_text(encoding="utf-8")
        trips = [table.trip_heading({"period": period, "busy": busy}) for period, busy in ((128, 0), (256, 0), (256, 2))]
        names = ["Machine", *trips, *(title for group, title in GROUPS.items() if group != "trip")]
        for name in names:
            self.assertIn(f"{name} -->\nfresh", filled(page, {name: "fresh"}))


class Counts(unittest.TestCase):
    @staticmethod
    def of_ctest(*command, label=None):
        properties = [{"name": "LABELS", "value": [label]}] if label else []
        return {"properties": properties, **({"command": list(command)} if command else {})}

    def test_a_program_is_found_behind_its_wrapper_and_a_script_is_none(self):
        self.assertEqual(program_of(self.of_ctest("pw-jack", "-p", "256", "/b/e2e_jack", "-v2")), "/b/e2e_jack")
        self.assertIsNone(program_of(self.of_ctest("python3", "test_report.py")))
        self.assertIsNone(program_of(self.of_ctest()))

    def test_a_program_that_runs_twice_has_its_functions_once(self):
        tests = [self.of_ctest("/b/test_a"), self.of_ctest("/b/test_a", "more"), self.of_ctest("/b/e2e_b", label="e2e"), self.of_ctest()]
        shown = dict(counts_of_tests(tests, lambda program: ["one()", "two()"] if program == "/b/test_a" else None))
        self.assertEqual(list(shown.values()), [4, 1, 0, 0, 1, 2, 2])

    def test_nothing_is_said_of_what_is_not_built_where_all_is(self):
        self.assertEqual(len(counts_of_tests([self.of_ctest("/b/test_a")], lambda program: [])), 6)


class Program(unittest.TestCase):
    def report(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                (pathlib.Path(folder) / name).write_text(text)
            return subprocess.run([sys.executable, "-B", str(REPORT), folder, "2000-01-31", "0.10 0.20 0.30"],
                                  capture_output=True, text=True, check=False)

    def test_one_table_for_each_group(self):
        trip = {"period": 256, "rate": 48000, "realTime": False, "played": []}
        done = self.report({"keys-notes.json": json.dumps({"benchmarks": [run("notePair", 1, 1)]}),
                            "trip-256.json": json.dumps(trip),
                            "tests.json": json.dumps({"counts": [["tests that ctest runs", 7]]}),
                            "other-log.json": json.dumps({"benchmarks": [run("unheardOf", 1, 1)]})})
        self.assertEqual(done.returncode, 0, done.stderr)
        headings = [line for line in done.stdout.split("\n") if line.startswith("### ")]
        self.assertEqual([heading.split(":")[0] for heading in headings],
                         ["### Machine", "### Note road", "### Round trip side by side, periods of 256 frames", "### Tests", "### Others"])
        self.assertRegex(done.stdout, r"tests that ctest runs +\| 7 ")
        self.assertIn("2000-01-31", done.stdout)
        self.assertIn("other/unheardOf", done.stdout)

    def test_rows_stand_in_the_order_of_their_meanings(self):
        samples = {name: {"unit": "MiB", "values": [1]} for name in ("proportional", "resident", "firstFrame")}
        shown = self.report({"start-all.json": json.dumps({"samples": samples})}).stdout
        places = [shown.index(row_of(f"start/{name}").what) for name in ("firstFrame", "resident", "proportional")]
        self.assertEqual(places, sorted(places))

    def test_round_trips_stand_in_the_order_of_their_periods_and_busy_ones_last(self):
        trips = [{"period": period, "busy": busy, "rate": 48000, "played": []} for period, busy in ((64, 2), (256, 0), (128, 0))]
        shown = self.report({f"trip-{i}.json": json.dumps(trip) for i, trip in enumerate(trips)}).stdout
        headings = [line for line in shown.split("\n") if line.startswith("### Round")]
        self.assertEqual([heading.split(" frames")[0].split()[-1] for heading in headings], ["128", "256", "64"])
        self.assertEqual(["busy" in heading for heading in headings], [False, False, True])

    def test_half_a_file_is_no_table(self):
        self.assertNotEqual(self.report({"keys-notes.json": '{"benchmarks": ['}).returncode, 0)


if __name__ == "__main__":
    unittest.main()
