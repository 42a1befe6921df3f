import json
import subprocess
import sys
import tempfile
import unittest
from contextlib import redirect_stderr, redirect_stdout
from io import StringIO
from pathlib import Path

from sample_passes import REPORT, entry, write_dump, write_pass

import check_counts


class ExpectedCounts(unittest.TestCase):
    def setUp(self):
        made = tempfile.TemporaryDirectory()
        self.addCleanup(made.cleanup)
        self.folder = Path(made.name)
        self.run_file = self.folder / "run.json"
        self.expected = self.folder / "expected.json"
        self.expect({"edit/library/10": {"allocations": 4, "bytes": 640, "instructions": 1000}})

    def expect(self, counts):
        self.expected.write_text(json.dumps(counts))

    def check(self, *arguments, allocations=4, size=640, instructions=1000):
        """The exit status, and what is said, when a run saw these figures."""
        write_pass(self.run_file, entry("edit/library/10", allocations=float(allocations), bytes=float(size)))
        write_dump(self.folder / "callgrind.out.1", "Client Request: edit/library/10", instructions)
        return self.outcome(*arguments)

    def outcome(self, *arguments):
        with redirect_stdout(StringIO()), redirect_stderr(StringIO()) as said:
            status = check_counts.main([*self.words(), *arguments])
        return status, said.getvalue()

    def words(self):
        return [str(self.run_file), "--instructions", str(self.folder), "--expected", str(self.expected)]

    def test_that_are_seen_again_pass(self):
        self.assertEqual(self.check(), (0, ""))

    def test_are_exact_of_few_allocations(self):
        status, said = self.check(allocations=5)

        self.assertEqual(status, 1)
        self.assertIn("edit, size 10: allocations: expected 4 within 1 %, seen 5 (+25.0 %)", said)
        self.assertIn(".ci/check-counts --renew", said)

    def test_leave_bytes_a_narrow_band(self):
        self.assertEqual(self.check(size=646), (0, ""))

        status, said = self.check(size=647)

        self.assertEqual(status, 1)
        self.assertIn("edit, size 10: bytes: expected 640 within 1 %, seen 647", said)

    def test_leave_instructions_a_band_to_both_sides(self):
        for inside in (950, 1050):
            self.assertEqual(self.check(instructions=inside), (0, ""))
        for outside, change in ((949, "-5.1 %"), (1051, "+5.1 %")):
            self.assertIn(f"instructions: expected 1,000 within 5 %, seen {outside:,} ({change})",
                          self.check(instructions=outside)[1])

    def test_notice_a_first_allocation(self):
        self.expect({"edit/library/10": {"allocations": 0, "bytes": 0, "instructions": 1000}})

        self.assertIn("allocations: expected 0 within 1 %, seen 1", self.check(allocations=1, size=0)[1])

    def test_notice_benchmarks_that_come_and_go(self):
        self.expect({"drag/library/10": {"allocations": 0, "bytes": 0, "instructions": 1000}})

        status, said = self.check()

        self.assertEqual(status, 1)
        self.assertIn("drag/library/10: expected, but there is no such benchmark any more", said)
        self.assertIn("edit/library/10: nothing is known of it", said)

    def test_are_written_anew_when_that_is_asked_for(self):
        self.assertEqual(self.check("--renew", allocations=5), (0, ""))

        self.assertEqual(self.check(allocations=5), (0, ""))
        self.assertEqual(self.check(allocations=4)[0], 1)

    def test_that_are_not_there_are_asked_for(self):
        self.expected.unlink()

        status, said = self.check()

        self.assertEqual(status, 1)
        self.assertIn("expected the known counts, which .ci/check-counts --renew writes", said)

    def test_need_the_instructions_of_each_benchmark(self):
        write_pass(self.run_file, entry("edit/library/10", allocations=4.0, bytes=640.0))

        status, said = self.outcome()

        self.assertEqual(status, 1)
        self.assertIn("edit/library/10: no instructions were counted", said)

    def test_end_the_program_when_they_differ(self):
        self.check(allocations=5)

        ended = subprocess.run([sys.executable, REPORT / "check_counts.py", *self.words()], capture_output=True,
                               text=True, check=False)

        self.assertEqual(ended.returncode, 1)
        self.assertIn("seen 5", ended.stderr)


if __name__ == "__main__":
    unittest.main()
