"""Reads how many instructions one operation of each benchmark took: callgrind writes a file for each."""

import re
from pathlib import Path

from passes import UnusableResults, parse_name

TRIGGER = re.compile(r"^desc: Trigger: Client Request: (.+)$", re.MULTILINE)
TOTALS = re.compile(r"^totals: (\d+)$", re.MULTILINE)
EVENTS = re.compile(r"^events: Ir$", re.MULTILINE)


def read_instructions(folder):
    """The number by BenchmarkName. What the end of the program dumps is left out."""
    counted = {}
    for path in sorted(Path(folder).glob("callgrind.out*")):
        text = path.read_text(encoding="utf-8", errors="replace")
        trigger = TRIGGER.search(text)
        if not trigger:
            continue
        totals = TOTALS.search(text)
        if not totals or not EVENTS.search(text):
            raise UnusableResults(f'{path}: no "events: Ir" with its "totals:"; expected what callgrind dumps')
        counted[parse_name(trigger[1], path)] = int(totals[1])
    return counted
