import unittest

from sample_passes import one_pass

from figures import Figures
from growth import exponent
from passes import BenchmarkName
from spread import Spread, ratio_of, spread_of


class Spreads(unittest.TestCase):
    def test_have_the_median_and_the_ends(self):
        self.assertEqual(spread_of([5.0, 1.0, 9.0]), Spread(5.0, 1.0, 9.0))

    def test_of_a_ratio_divide_within_a_pass(self):
        # The second pass was three times as slow for both.
        self.assertEqual(ratio_of([10.0, 30.0], [5.0, 15.0]), Spread(2.0, 2.0, 2.0))

    def test_of_a_ratio_need_a_divisor(self):
        self.assertIsNone(ratio_of([1.0, 1.0], [1.0, 0.0]))


class Exponents(unittest.TestCase):
    def test_are_those_of_powers(self):
        # 2 * size ** 1.5
        self.assertAlmostEqual(exponent([(100, 2e3), (10_000, 2e6), (1_000_000, 2e9)]), 1.5)

    def test_lie_between_where_points_are_on_no_line(self):
        # Logarithms to the base 10: (2, 0), (3, 2), (4, 1); the middle is (3, 1), the slope (1 + 0 + 0) / 2.
        self.assertAlmostEqual(exponent([(100, 1), (1_000, 100), (10_000, 10)]), 0.5)

    def test_leave_small_sizes_out(self):
        self.assertAlmostEqual(exponent([(1, 50), (10, 1), (100, 100), (1_000, 1_000), (10_000, 10_000)]), 1.0)

    def test_need_three_sizes(self):
        self.assertIsNone(exponent([(10, 10), (100, 100), (1_000, 1_000)]))


class AllFigures(unittest.TestCase):
    def setUp(self):
        first = one_pass({"edit/library/100": 10.0, "edit/qt/100": 40.0}, allocations=3.0, kept=0.5)
        second = one_pass({"edit/library/100": 20.0, "edit/qt/100": 60.0}, allocations=3.0, kept=0.5)
        third = one_pass({"edit/library/100": 10.0, "edit/qt/100": 20.0}, allocations=3.0, kept=0.5)
        self.library = BenchmarkName("edit", 100, "library")
        self.qt = BenchmarkName("edit", 100, "qt")
        self.figures = Figures([first, second, third], {self.library: 1050})

    def test_compare_with_the_library_pass_by_pass(self):
        self.assertEqual(self.figures.to_library(self.qt), Spread(3.0, 2.0, 4.0))

    def test_know_nothing_of_what_was_not_measured(self):
        absent = BenchmarkName("edit", 100, "floor")

        self.assertIsNone(self.figures.spread(absent))
        self.assertIsNone(self.figures.to_library(absent))
        self.assertIsNone(self.figures.spread(self.qt, "instructions"))
        self.assertIsNone(self.figures.spread(self.library, "weight"))

    def test_put_the_library_first(self):
        figures = Figures([one_pass({"edit/floor/1": 1, "edit/qt/1": 1, "edit/library/1": 1})], {})

        self.assertEqual(figures.contenders("edit"), ["library", "floor", "qt"])

    def test_need_two_sizes_for_a_curve(self):
        figures = Figures([one_pass({"one/qt/0": 1, "one/qt/1": 1, "two/qt/1": 1, "two/qt/2": 1})], {})

        self.assertFalse(figures.make_a_curve("one"))
        self.assertTrue(figures.make_a_curve("two"))

    def test_tell_how_the_passes_grow(self):
        times = {"edit/qt/100": 1.0, "edit/qt/1000": 10.0, "edit/qt/10000": 100.0}
        squares = {name: time * time for name, time in times.items()}
        figures = Figures([one_pass(times), one_pass(times), one_pass(squares)], {})

        growth = figures.growth("edit", "qt")

        self.assertAlmostEqual(growth.median, 1.0)
        self.assertAlmostEqual(growth.lowest, 1.0)
        self.assertAlmostEqual(growth.highest, 2.0)

    def test_are_written_with_all_counters(self):
        written = self.figures.as_json()["edit"]["sizes"]["100"]

        self.assertEqual(written["checksum"], 7.0)
        self.assertEqual(written["contenders"]["library"],
                         {"time_ns": {"median": 10.0, "lowest": 10.0, "highest": 20.0}, "allocations": 3, "kept": 0.5,
                          "instructions": 1050, "instructions_per_target": 10.5})
        self.assertEqual(written["contenders"]["qt"]["time_to_library"], {"median": 3.0, "lowest": 2.0, "highest": 4.0})


if __name__ == "__main__":
    unittest.main()
