import json
import tempfile
import unittest
from pathlib import Path

from sample_passes import one_pass

from bars import judge_all, read_works
from choose_counted import counted, expression_for
from figures import Figures
from passes import UnusableResults, parse_name
from spread import Spread


def verdicts_of(bar, times, **counters):
    figures = Figures([one_pass(times, **counters)], {})
    return judge_all(figures, {"edit": {"bars": [bar]}})


class Bars(unittest.TestCase):
    def outcome(self, bar, times, **counters):
        return verdicts_of(bar, times, **counters)[0].outcome()

    def test_of_speed_are_met_at_their_limit(self):
        bar = {"sizes": [10], "against": "qt", "at_least": 4}

        self.assertEqual(self.outcome(bar, {"edit/library/10": 10, "edit/qt/10": 40}), "met")
        self.assertEqual(self.outcome(bar, {"edit/library/10": 10, "edit/qt/10": 39}), "missed")

    def test_of_nearness_turn_the_ratio_round(self):
        bar = {"sizes": [10], "against": "floor", "at_most": 5}

        self.assertEqual(self.outcome(bar, {"edit/library/10": 50, "edit/floor/10": 10}), "met")
        self.assertEqual(self.outcome(bar, {"edit/library/10": 51, "edit/floor/10": 10}), "missed")

    def test_may_look_at_another_benchmark(self):
        bar = {"sizes": [200], "against": "calm/library/0", "at_most": 1.1}

        self.assertEqual(self.outcome(bar, {"edit/library/200": 11, "calm/library/0": 10}), "met")
        self.assertEqual(self.outcome(bar, {"edit/library/200": 12, "calm/library/0": 10}), "missed")

    def test_may_look_at_another_figure(self):
        bar = {"sizes": [10], "against": "qt", "figure": "bytes", "at_least": 2}
        size = {"edit/library/10": 100, "edit/qt/10": 150}

        self.assertEqual(self.outcome(bar, {"edit/library/10": 1, "edit/qt/10": 9}, bytes=size), "missed")

    def test_are_judged_by_the_median_of_the_passes(self):
        passes = [one_pass({"edit/library/10": 10, "edit/qt/10": time}) for time in (50, 20, 60)]
        bar = {"sizes": [10], "against": "qt", "at_least": 4}

        verdict = judge_all(Figures(passes, {}), {"edit": {"bars": [bar]}})[0]

        self.assertEqual((verdict.measured, verdict.outcome()), (Spread(5.0, 2.0, 6.0), "met"))

    def test_stand_once_for_each_size(self):
        bar = {"sizes": [10, 100], "against": "qt", "at_least": 2}

        verdicts = verdicts_of(bar, {"edit/library/10": 10, "edit/qt/10": 40})

        self.assertEqual([verdict.outcome() for verdict in verdicts], ["met", "not measured"])

    def test_of_growth_need_a_fit(self):
        bar = {"growth_at_most": 1.02}
        times = {"edit/library/100": 1, "edit/library/1000": 10, "edit/library/10000": 100}

        self.assertEqual(self.outcome(bar, times), "met")
        self.assertEqual(self.outcome(bar, times | {"edit/library/10000": 120}), "missed")
        self.assertEqual(self.outcome(bar, {"edit/library/100": 1}), "not measured")

    def test_of_sameness_begin_at_their_size(self):
        bar = {"figure": "allocations", "same_from": 100}
        times = {"edit/library/10": 1, "edit/library/100": 1, "edit/library/1000": 1}

        self.assertEqual(self.outcome(bar, times, allocations={"edit/library/10": 1, "edit/library/100": 5,
                                                               "edit/library/1000": 5}), "met")
        self.assertEqual(self.outcome(bar, times, allocations={"edit/library/10": 5, "edit/library/100": 5,
                                                               "edit/library/1000": 6}), "missed")

    def test_of_sameness_hold_for_nothing_at_all(self):
        bar = {"figure": "allocations", "same_from": 100}
        times = {"edit/library/100": 1, "edit/library/1000": 1}

        self.assertEqual(self.outcome(bar, times, allocations=0), "met")

    def test_of_sums_add_the_size(self):
        bar = {"sizes": [10], "figure": "kept", "at_most_sum": {"file_bytes": 3, "size": 400}}

        # 3 * 1,000 + 400 * 10
        self.assertEqual(self.outcome(bar, {"edit/library/10": 1}, file_bytes=1000, kept=7000), "met")
        self.assertEqual(self.outcome(bar, {"edit/library/10": 1}, file_bytes=1000, kept=7001), "missed")
        self.assertEqual(self.outcome(bar, {"edit/library/10": 1}, kept=1), "not measured")


class TableOfBars(unittest.TestCase):
    def read(self, text):
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            file.write(text)
            file.flush()
            return read_works(file.name)

    def test_of_the_project_can_be_read(self):
        works = read_works(Path(__file__).resolve().parents[2] / "bench" / "bars.json")

        self.assertIn("refresh_agreeing", works)

    def test_knows_what_belongs_to_each_kind(self):
        for bar in ({"at_least": 5, "sizes": [1]}, {"at_least": 5, "at_most": 6, "against": "qt", "sizes": [1]},
                    {"growth_at_most": 1, "sizes": [1]}, {"same_from": 1}, {"fast": True}):
            with self.assertRaisesRegex(UnusableResults, "edit: the bar"):
                self.read(json.dumps({"edit": {"bars": [bar]}}))

    def test_that_is_none_is_refused(self):
        with self.assertRaisesRegex(UnusableResults, "expected the table"):
            self.read("{")


class CountedBenchmarks(unittest.TestCase):
    def chosen(self, *names, works=None, least=0):
        found = counted([parse_name(name, "sample") for name in names], works or {}, 100, 1000, least)
        return expression_for(found)

    def test_are_found_by_their_whole_names(self):
        self.assertEqual(self.chosen("edit/library/1", "edit/qt/1"), "^(edit/library/1|edit/qt/1)$")

    def test_of_the_library_are_larger(self):
        self.assertEqual(self.chosen("edit/library/1000", "edit/qt/1000", "edit/qt/100", "edit/library/10000"),
                         "^(edit/library/1000|edit/qt/100)$")

    def test_leave_out_works_that_say_so(self):
        self.assertEqual(self.chosen("edit/library/1", works={"edit": {"uncounted": "too long"}}), "")

    def test_leave_out_small_sizes_of_works_that_have_sizes(self):
        works = {"edit": {"size": "objects"}, "read": {}}

        self.assertEqual(self.chosen("edit/library/10", "edit/library/100", "read/library/1", works=works, least=100),
                         "^(edit/library/100|read/library/1)$")


if __name__ == "__main__":
    unittest.main()
