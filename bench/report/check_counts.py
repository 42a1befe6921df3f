#!/usr/bin/env python3
"""Compares the counts of a run with the checked-in ones, or writes these anew."""

import argparse
import sys
from pathlib import Path

sys.dont_write_bytecode = True  # nothing beside the sources
import expected_counts
from instructions import read_instructions
from passes import UnusableResults, read_pass


def arguments(words):
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("run", type=Path, help="the JSON of the run")
    parser.add_argument("--instructions", type=Path, required=True, metavar="FOLDER", help="what callgrind wrote")
    parser.add_argument("--expected", type=Path, required=True, metavar="FILE", help="the checked-in counts")
    parser.add_argument("--renew", action="store_true", help="write the checked-in counts anew")
    return parser.parse_args(words)


def check(options):
    """What the program exits with."""
    seen = expected_counts.counts_of(read_pass(options.run), read_instructions(options.instructions))
    if options.renew:
        expected_counts.write_expected(options.expected, seen)
        print(f"{options.expected}: written for {len(seen)} benchmarks; commit it with the reason of the change")
        return 0
    found = expected_counts.differences(expected_counts.read_expected(options.expected), seen)
    if found:
        print("The library takes something else for one operation than it took:", *found, sep="\n  ", file=sys.stderr)
        print(f"If that is wanted: {expected_counts.RENEW}, and commit {options.expected} with the reason.",
              file=sys.stderr)
        return 1
    print(f"The counts of {len(seen)} benchmarks are as expected")
    return 0


def main(words):
    try:
        return check(arguments(words))
    except UnusableResults as error:
        print(f".ci/check-counts: {error}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
