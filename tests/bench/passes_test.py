import tempfile
import unittest
from pathlib import Path

from sample_passes import entry, one_pass, write_dump, write_pass

from checksums import demand_same_checksums
from instructions import read_instructions
from passes import BenchmarkName, UnusableResults, read_passes


class InFolder(unittest.TestCase):
    def setUp(self):
        made = tempfile.TemporaryDirectory()
        self.addCleanup(made.cleanup)
        self.folder = Path(made.name)


class Passes(InFolder):
    def test_are_read_in_nanoseconds_of_the_processor(self):
        path = write_pass(self.folder / "1.json", entry("edit/qt/10", cpu_time=2.5, unit="us", bytes=64.0))

        measured = read_passes([path])[0].measurements[BenchmarkName("edit", 10, "qt")]

        self.assertEqual(measured.nanoseconds, 2500)
        self.assertEqual(measured.counters, {"checksum": 7.0, "bytes": 64.0})

    def test_leave_out_what_is_computed_from_several_runs(self):
        mean = entry("edit/qt/10_mean") | {"run_type": "aggregate"}
        path = write_pass(self.folder / "1.json", entry("edit/qt/10"), mean)

        self.assertEqual(len(read_passes([path])[0].measurements), 1)

    def test_need_names_of_three_parts(self):
        path = write_pass(self.folder / "1.json", entry("edit/qt"))

        with self.assertRaisesRegex(UnusableResults, r'1\.json: the benchmark "edit/qt"; expected .*WORK/'):
            read_passes([path])

    def test_need_a_checksum(self):
        without = entry("edit/qt/10")
        del without["checksum"]
        path = write_pass(self.folder / "1.json", without)

        with self.assertRaisesRegex(UnusableResults, "edit/qt/10 has no checksum"):
            read_passes([path])

    def test_tell_which_benchmark_failed_and_why(self):
        path = write_pass(self.folder / "1.json", entry("edit/qt/10", error_occurred=True, error_message="no disk"))

        with self.assertRaisesRegex(UnusableResults, "edit/qt/10 failed: no disk"):
            read_passes([path])

    def test_have_to_measure_the_same_benchmarks(self):
        first = write_pass(self.folder / "1.json", entry("edit/qt/10"), entry("edit/library/10"))
        second = write_pass(self.folder / "2.json", entry("edit/qt/10"))

        with self.assertRaisesRegex(UnusableResults, r"2\.json: edit/library/10 is only here or only in .*1\.json"):
            read_passes([first, second])

    def test_that_are_cut_off_are_refused_by_name(self):
        path = self.folder / "1.json"
        path.write_text('{"context": {')

        with self.assertRaisesRegex(UnusableResults, r"1\.json: .*expected the JSON"):
            read_passes([path])

    def test_without_benchmarks_are_refused(self):
        with self.assertRaisesRegex(UnusableResults, "no benchmark in it"):
            read_passes([write_pass(self.folder / "1.json")])


class Checksums(unittest.TestCase):
    def test_may_differ_between_sizes_and_works(self):
        passes = [one_pass({"edit/qt/1": 1, "edit/qt/10": 1, "drag/qt/1": 1},
                           checksum={"edit/qt/1": 1.0, "edit/qt/10": 2.0, "drag/qt/1": 3.0})]

        demand_same_checksums(passes)

    def test_that_differ_between_contenders_are_named(self):
        passes = [one_pass({"edit/library/10": 1, "edit/floor/10": 1, "edit/qt/10": 1},
                           checksum={"edit/library/10": 5.0, "edit/floor/10": 5.0, "edit/qt/10": 6.0})]

        with self.assertRaisesRegex(UnusableResults, r"edit, size 10: 5\.0 \(floor, library\), 6\.0 \(qt\)"):
            demand_same_checksums(passes)

    def test_that_differ_between_passes_are_named(self):
        passes = [one_pass({"edit/qt/10": 1}, checksum=5.0), one_pass({"edit/qt/10": 1}, checksum=6.0)]

        with self.assertRaisesRegex(UnusableResults, r"edit, size 10: 5\.0 \(qt\), 6\.0 \(qt\)"):
            demand_same_checksums(passes)


class Instructions(InFolder):
    def test_are_read_for_each_operation(self):
        write_dump(self.folder / "callgrind.out.1", "Client Request: edit/qt/10", 1234)
        write_dump(self.folder / "callgrind.out.2", "Client Request: edit/qt/100", 12345)
        write_dump(self.folder / "callgrind.out", "Program termination", 99)

        self.assertEqual(read_instructions(self.folder),
                         {BenchmarkName("edit", 10, "qt"): 1234, BenchmarkName("edit", 100, "qt"): 12345})

    def test_of_a_dump_without_a_total_are_refused(self):
        (self.folder / "callgrind.out.1").write_text("desc: Trigger: Client Request: edit/qt/10\nevents: Ir\n")

        with self.assertRaisesRegex(UnusableResults, r'callgrind\.out\.1: no "events: Ir" with its "totals:"'):
            read_instructions(self.folder)


if __name__ == "__main__":
    unittest.main()
