#!/usr/bin/env python3
"""Reads names of benchmarks and prints the expression that finds those whose instructions are counted, which takes 50
times as long as the work itself. Works that the table calls "uncounted", with the reason, are left out."""

import argparse
import sys
from pathlib import Path

sys.dont_write_bytecode = True  # nothing beside the sources
from bars import read_works
from figures import LIBRARY
from passes import UnusableResults, parse_name


def counted(names, works, largest, largest_of_library, least=0):
    """`least` does not concern works that have one size only, which then is no number of anything."""
    return [name for name in names if "uncounted" not in works.get(name.work, {})
            and name.size <= (largest_of_library if name.contender == LIBRARY else largest)
            and (name.size >= least or "size" not in works.get(name.work, {}))]


def expression_for(names):
    """Finds these names alone; empty without names."""
    return f"^({'|'.join(map(str, names))})$" if names else ""


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("bars", type=Path, help="the table of the works")
    parser.add_argument("--library", type=int, required=True, metavar="SIZE", help="the largest size of the library")
    parser.add_argument("--least", type=int, default=0, metavar="SIZE", help="the smallest size (0)")
    parser.add_argument("--others", type=int, default=-1, metavar="SIZE", help="the largest size of the others (none)")
    options = parser.parse_args()
    names = [parse_name(line.strip(), "the list of benchmarks") for line in sys.stdin if line.strip()]
    print(expression_for(counted(names, read_works(options.bars), options.others, options.library, options.least)))


if __name__ == "__main__":
    try:
        main()
    except UnusableResults as error:
        sys.exit(str(error))
