"""Compares what one operation of the library takes with what is known of it."""

import json
from pathlib import Path

from passes import UnusableResults, parse_name

# Compilers and libraries differ in single instructions. What is asked of the heap is the same everywhere, but for texts
# that hold the name of the folder where all this lies.
BANDS = {"allocations": 0.01, "bytes": 0.01, "instructions": 0.05}
RENEW = ".ci/check-counts --renew"


def counts_of(one, instructions):
    """The figures that are compared, by BenchmarkName."""
    missing = sorted(set(one.measurements) - set(instructions))
    if missing:
        raise UnusableResults(f"{missing[0]}: no instructions were counted; expected a dump for each benchmark")
    return {name: {"allocations": int(measurement.counters["allocations"]), "bytes": int(measurement.counters["bytes"]),
                   "instructions": instructions[name]} for name, measurement in one.measurements.items()}


def read_expected(path):
    try:
        written = json.loads(Path(path).read_text(encoding="utf-8"))
    except (OSError, ValueError) as error:
        raise UnusableResults(f"{path}: {error}; expected the known counts, which {RENEW} writes") from error
    return {parse_name(name, path): counts for name, counts in written.items()}


def write_expected(path, counts):
    """A line for each benchmark, so that a difference between two versions reads as one."""
    lines = [f"  {json.dumps(str(name))}: {json.dumps(counts[name])}" for name in sorted(counts)]
    Path(path).write_text("{\n" + ",\n".join(lines) + "\n}\n", encoding="utf-8")


def differences(expected, seen):
    """A sentence for each figure that is not as expected, in the order of works and sizes."""
    found = []
    for name in sorted(set(expected) | set(seen)):
        if name not in seen:
            found.append(f"{name}: expected, but there is no such benchmark any more")
        elif name not in expected:
            found.append(f"{name}: nothing is known of it")
        else:
            found += [difference(name, figure, expected[name][figure], seen[name][figure]) for figure in BANDS
                      if abs(seen[name][figure] - expected[name][figure]) > BANDS[figure] * expected[name][figure]]
    return found


def difference(name, figure, expected, seen):
    change = f" ({100 * (seen - expected) / expected:+.1f} %)" if expected else ""
    band = f" within {100 * BANDS[figure]:.0f} %" if BANDS[figure] else ""
    return f"{name.work}, size {name.size}: {figure}: expected {expected:,}{band}, seen {seen:,}{change}"
