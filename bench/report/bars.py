"""What must hold, and whether it does: bench/bars.json lists the bars of each work.

A bar speaks of the library and of one of these; "figure" is "time" unless it says otherwise:

    "against": CONTENDER, "at_least": X    the contender's figure is at least X times the library's
    "against": CONTENDER, "at_most": X     the library's figure is at most X times the contender's
    "growth_at_most": X                    the exponent fitted to the times is at most X
    "same_from": SIZE                      the figure is the same at all sizes from SIZE on
    "at_most_sum": {FIGURE: X, ...}        the figure is at most the sum of X times each of these; "size" is one

"against" may also name a benchmark as WORK/CONTENDER/SIZE. The first two and the last hold for each of "sizes"."""

import json
from pathlib import Path
from typing import NamedTuple, Optional

from figures import LIBRARY, label
from passes import BenchmarkName, UnusableResults, parse_name
from spread import Spread, spread_of

KINDS = {"at_least": {"against", "sizes"}, "at_most": {"against", "sizes"}, "at_most_sum": {"sizes"},
         "growth_at_most": set(), "same_from": {"figure"}}


class Verdict(NamedTuple):
    work: str
    demand: str                 # what must hold, in words
    measured: Optional[Spread]  # None when nothing was measured
    holds: Optional[bool]       # the median decides

    def outcome(self):
        return {None: "not measured", True: "met", False: "missed"}[self.holds]


def read_works(path):
    """What the table says of each work, by its name: "title", "size" (what the sizes count), "bars", and "uncounted"
    with the reason where its instructions are not counted."""
    try:
        works = json.loads(Path(path).read_text(encoding="utf-8"))
    except (OSError, ValueError) as error:
        raise UnusableResults(f"{path}: {error}; expected the table of the works and their bars") from error
    for work, entry in works.items():
        for bar in entry.get("bars", []):
            kinds = [kind for kind in KINDS if kind in bar]
            expected = KINDS[kinds[0]] | {kinds[0]} if len(kinds) == 1 else None
            if not expected or not expected <= set(bar) <= expected | {"figure"}:
                raise UnusableResults(f"{path}: {work}: the bar {json.dumps(bar)}; expected one of {', '.join(KINDS)} "
                                      "with what belongs to it, as bench/report/bars.py describes")
    return works


def is_of_time(bar):
    return bar.get("figure", "time") == "time"


def reference_of(bar, own):
    return parse_name(bar["against"], "bars.json") if "/" in bar["against"] else own._replace(contender=bar["against"])


def reference_in_words(bar):
    return f"`{bar['against']}`" if "/" in bar["against"] else label(bar["against"])


def at_least(figures, bar, own):
    times = "at least as" if bar["at_least"] == 1 else f"at least {bar['at_least']} times as"
    word = "fast as" if is_of_time(bar) else f"little in {bar['figure']} as"
    ratio = figures.ratio(reference_of(bar, own), own, bar.get("figure", "time"))
    return f"{times} {word} {reference_in_words(bar)}", ratio, lambda times: times >= bar["at_least"]


def at_most(figures, bar, own):
    figure = bar.get("figure", "time")
    return (f"at most {bar['at_most']} times the {figure} of {reference_in_words(bar)}",
            figures.ratio(own, reference_of(bar, own), figure), lambda times: times <= bar["at_most"])


def at_most_sum(figures, bar, own):
    """Measured as the part of the sum that is used."""
    figure, shares = bar.get("figure", "time"), bar["at_most_sum"]
    demand = f"{figure} at most " + " + ".join(f"{times} × {name}" for name, times in shares.items())
    values = [figures.values(own, figure)]
    values += [[own.size] * len(figures.passes) if name == "size" else figures.values(own, name) for name in shares]
    if None in values:
        return demand, None, None
    used = spread_of(value[0] / sum(times * part for times, part in zip(shares.values(), value[1:]))
                     for value in zip(*values))
    return demand, used, lambda part: part <= 1


def judged_growth(figures, work, bar):
    growth = figures.growth(work, LIBRARY)
    holds = None if growth is None else growth.median <= bar["growth_at_most"]
    return Verdict(work, f"grows with an exponent of at most {bar['growth_at_most']}", growth, holds)


def judged_sameness(figures, work, bar):
    """Measured as the largest value beside the smallest."""
    demand = f"the same {bar['figure']} at all sizes from {bar['same_from']:,} on"
    values = [figures.values(BenchmarkName(work, size, LIBRARY), bar["figure"])
              for size in figures.sizes(work) if size >= bar["same_from"]]
    values = [value for value in values if value is not None]
    if len(values) < 2:
        return Verdict(work, demand, None, None)
    each = [(max(one), min(one)) for one in zip(*values)]
    apart = spread_of(1.0 if high == low else high / low if low else float("inf") for high, low in each)
    return Verdict(work, demand, apart, apart.highest == 1)


BY_SIZE = {"at_least": at_least, "at_most": at_most, "at_most_sum": at_most_sum}


def judged(figures, work, bar):
    if "growth_at_most" in bar:
        return [judged_growth(figures, work, bar)]
    if "same_from" in bar:
        return [judged_sameness(figures, work, bar)]
    verdicts = []
    judge = next(judge for kind, judge in BY_SIZE.items() if kind in bar)
    for size in bar["sizes"]:
        demand, measured, holds = judge(figures, bar, BenchmarkName(work, size, LIBRARY))
        verdicts.append(Verdict(work, f"at {size:,}: {demand}", measured, None if measured is None
                                else holds(measured.median)))
    return verdicts


def judge_all(figures, works):
    return [verdict for work, entry in works.items() for bar in entry.get("bars", [])
            for verdict in judged(figures, work, bar)]


def as_json(verdict):
    return {"work": verdict.work, "demand": verdict.demand, "outcome": verdict.outcome(),
            "measured": verdict.measured.rounded() if verdict.measured else None}
