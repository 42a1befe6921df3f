"""Made-up results for the tests of the report; importing it makes the report's modules known."""

import json
import sys
from pathlib import Path

REPORT = Path(__file__).resolve().parents[2] / "bench" / "report"
sys.path.insert(0, str(REPORT))

from passes import Measurement, Pass, parse_name  # noqa: E402 (after the path)

CONTEXT = {"date": "2026-11-22T07:49:35+00:00", "num_cpus": 2, "mhz_per_cpu": 2000, "caches": [], "load_avg": [0.5]}


def one_pass(times, **counters):
    """A pass in which each benchmark took so many nanoseconds; a counter is one value for all, or one for each."""
    measurements = {}
    for name, nanoseconds in times.items():
        own = {key: value[name] if isinstance(value, dict) else value for key, value in counters.items()}
        measurements[parse_name(name, "sample")] = Measurement(nanoseconds, {"checksum": 7.0, **own})
    return Pass(CONTEXT, measurements)


def entry(name, cpu_time=10.0, unit="ns", **counters):
    """A benchmark as Google Benchmark writes it."""
    return {"name": name, "run_name": name, "run_type": "iteration", "iterations": 3, "real_time": 99.0,
            "cpu_time": cpu_time, "time_unit": unit, "checksum": 7.0, **counters}


def write_pass(path, *entries):
    path.write_text(json.dumps({"context": CONTEXT, "benchmarks": list(entries)}))
    return path


def write_dump(path, trigger, total):
    """What callgrind writes of one operation, without the lines of the functions."""
    path.write_text(f"# callgrind format\nversion: 1\npart: 1\n\ndesc: I1 cache: \ndesc: Trigger: {trigger}\n\n"
                    f"positions: line\nevents: Ir\nsummary: {total}\n\nfn=(1) f\n12 {total}\n\ntotals: {total}\n")
