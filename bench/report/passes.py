"""Reads what the passes of the benchmarks wrote, in the JSON of Google Benchmark."""

import json
import re
from pathlib import Path
from typing import NamedTuple

NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
# What Google Benchmark itself says of a benchmark; everything else is one of its counters.
OWN_KEYS = {"name", "family_index", "per_family_instance_index", "run_name", "run_type", "repetitions",
            "repetition_index", "threads", "iterations", "real_time", "cpu_time", "time_unit"}


class UnusableResults(Exception):
    """The results cannot be reported; says which, where, and what was expected."""


class BenchmarkName(NamedTuple):
    """Who did what, how large. Sorts by the work, the size, the contender."""
    work: str
    size: int
    contender: str

    def __str__(self):
        return f"{self.work}/{self.contender}/{self.size}"


def parse_name(text, place):
    """The name in "WORK/CONTENDER/SIZE"; `place` is told when it is none."""
    found = re.fullmatch(r"([^/]+)/([^/]+)/(\d+)", text)
    if not found:
        raise UnusableResults(f'{place}: the benchmark "{text}"; expected a name of the form WORK/CONTENDER/SIZE')
    return BenchmarkName(found[1], int(found[3]), found[2])


class Measurement(NamedTuple):
    """What one pass measured of one benchmark, for one operation."""
    nanoseconds: float  # of the processor
    counters: dict


class Pass(NamedTuple):
    context: dict       # what Google Benchmark tells of the machine
    measurements: dict  # Measurement by BenchmarkName, in the order of the run


def measurement_of(entry, place):
    if entry.get("error_occurred"):
        raise UnusableResults(f'{place}: {entry["name"]} failed: {entry.get("error_message")}')
    counters = {key: value for key, value in entry.items() if key not in OWN_KEYS}
    if "checksum" not in counters:
        raise UnusableResults(f'{place}: {entry["name"]} has no checksum; expected what Measure() reports')
    return Measurement(entry["cpu_time"] * NANOSECONDS[entry["time_unit"]], counters)


def read_pass(path):
    path = Path(path)
    try:
        written = json.loads(path.read_text(encoding="utf-8"))
    except (OSError, ValueError) as error:
        raise UnusableResults(f"{path}: {error}; expected the JSON that a pass of the benchmarks writes") from error
    measurements = {}
    for entry in written["benchmarks"]:
        if entry.get("run_type") == "iteration":
            measurements[parse_name(entry["name"], path)] = measurement_of(entry, path)
    if not measurements:
        raise UnusableResults(f"{path}: no benchmark in it; expected at least one")
    return Pass(written["context"], measurements)


def read_passes(paths):
    """All passes; each has to have measured the same benchmarks as the first."""
    passes = [read_pass(path) for path in paths]
    for path, one in zip(paths, passes):
        apart = set(one.measurements) ^ set(passes[0].measurements)
        if apart:
            raise UnusableResults(f"{path}: {min(apart)} is only here or only in {paths[0]}; "
                                  "expected the same benchmarks in each pass")
    return passes
