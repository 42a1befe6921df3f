import importlib.util
import tempfile
import unittest
from pathlib import Path

from sample_passes import one_pass

import amounts
from bars import judge_all
from figures import Figures
from page import BEGIN, END, counts_table, times_table, verdicts_table, write_into
from passes import BenchmarkName, UnusableResults
from spread import Spread


class Amounts(unittest.TestCase):
    def test_have_three_digits(self):
        self.assertEqual([amounts.three_digits(value) for value in (0, 0.012345, 0.5, 9.999, 12.345, 99.96, 1234.5)],
                         ["0", "0.0123", "0.500", "10.0", "12.3", "100", "1,230"])

    def test_of_time_take_the_largest_unit_below(self):
        self.assertEqual([amounts.time(value) for value in (1.5, 999.4, 999.9, 2_500_000, 90e9)],
                         ["1.50 ns", "999 ns", "1.00 µs", "2.50 ms", "90.0 s"])

    def test_of_memory_stay_whole_while_they_are_short(self):
        self.assertEqual([amounts.size_in_bytes(value) for value in (0, 9_999, 10_240, 3 << 20)],
                         ["0 B", "9,999 B", "10.0 KiB", "3.00 MiB"])

    def test_that_count_stay_whole_to_a_million(self):
        self.assertEqual([amounts.count(value) for value in (None, 7, 999_999, 12_340_000, 52.46)],
                         ["-", "7", "999,999", "12.3 M", "52.5"])

    def test_show_a_spread_only_where_there_is_one(self):
        self.assertEqual(amounts.with_spread(Spread(2.0, 1.0, 3.0)), "2.00 (1.00 to 3.00)")
        self.assertEqual(amounts.with_spread(Spread(2.0, 2.0, 2.0001)), "2.00")


class Tables(unittest.TestCase):
    def test_of_times_show_how_many_times_others_take(self):
        times = {"edit/library/10": 1000, "edit/plain_map/10": 2500, "edit/library/100": 9000}
        figures = Figures([one_pass(times)], {})

        self.assertEqual(times_table(figures, "edit", "objects").splitlines(),
                         ["| objects | library | plain map |", "| --- | --- | --- |", "| 10 | 1.00 µs | × 2.50 |",
                          "| 100 | 9.00 µs | - |"])

    def test_of_counts_divide_the_instructions(self):
        figures = Figures([one_pass({"edit/library/10": 1}, allocations=2, bytes=64, kept=0, peak=48)],
                          {BenchmarkName("edit", 10, "library"): 1250})

        self.assertEqual(counts_table(figures, "edit", "objects").splitlines()[-1],
                         "| 10 | 2 | 64 B | 0 B | 48 B | 1,250 | 125 |")

    def test_of_bars_stress_what_does_not_hold(self):
        figures = Figures([one_pass({"edit/library/10": 10, "edit/qt/10": 40})], {})
        bars = [{"sizes": [10], "against": "qt", "at_least": least} for least in (4, 5)]

        rows = verdicts_table(judge_all(figures, {"edit": {"bars": bars}})).splitlines()

        self.assertEqual(rows[2:], ["| `edit` | at 10: at least 4 times as fast as Qt | 4.00 | met |",
                                    "| `edit` | at 10: at least 5 times as fast as Qt | 4.00 | **missed** |"])


class Page(unittest.TestCase):
    def setUp(self):
        made = tempfile.TemporaryDirectory()
        self.addCleanup(made.cleanup)
        self.path = Path(made.name) / "page.md"

    def test_keeps_what_stands_round_the_markers(self):
        self.path.write_text(f"# Before\n\n{BEGIN}\n\nold\n\n{END}\n\nAfter.\n")

        write_into(self.path, "new\n")

        self.assertEqual(self.path.read_text(), f"# Before\n\n{BEGIN}\n\nnew\n\n{END}\n\nAfter.\n")

    def test_without_markers_stays_as_it_was(self):
        self.path.write_text(f"# Before\n\n{BEGIN}\n")

        with self.assertRaisesRegex(UnusableResults, "no place for the figures"):
            write_into(self.path, "new\n")

        self.assertEqual(self.path.read_text(), f"# Before\n\n{BEGIN}\n")

    def test_of_the_project_has_the_markers(self):
        text = (Path(__file__).resolve().parents[2] / "docs" / "performance.md").read_text(encoding="utf-8")

        self.assertLess(text.index(BEGIN), text.index(END))


@unittest.skipUnless(importlib.util.find_spec("matplotlib"), "matplotlib draws the curves")
class Curves(unittest.TestCase):
    def test_of_the_same_figures_have_the_same_bytes(self):
        import curves
        figures = Figures([one_pass({f"edit/{contender}/{size}": size for contender in ("library", "novel")
                                     for size in (0, 1, 10)})], {})
        with tempfile.TemporaryDirectory() as folder:
            drawn = []
            for path in (Path(folder) / "1.svg", Path(folder) / "2.svg"):
                curves.draw(figures, "edit", "An edit", "objects", path)
                drawn.append(path.read_text(encoding="utf-8"))

        self.assertEqual(drawn[0], drawn[1])
        self.assertNotIn("dc:date", drawn[0])


if __name__ == "__main__":
    unittest.main()
