"""Everything that the passes and the counts say, by benchmark."""

from statistics import median

from growth import LEAST_SIZE, exponent
from passes import BenchmarkName
from spread import Spread, ratio_of, spread_of

LIBRARY = "library"
COUNTED = ("allocations", "bytes", "kept", "peak")
LABELS = {"floor_calls": "floor with calls", "plain_map": "plain map", "qt": "Qt", "gobject": "GObject"}


def label(contender):
    """What people call a contender."""
    return LABELS.get(contender, contender.replace("_", " "))


def plain(number):
    """A whole number without its point; others to five digits."""
    return int(number) if float(number).is_integer() else float(f"{number:.5g}")


class Figures:
    """Answers in the order of the run. A figure is "time" (nanoseconds), "instructions", or a counter's name, always
    for one operation."""

    def __init__(self, passes, instructions):
        self.passes = [one.measurements for one in passes]
        self.instructions = instructions
        self.names = list(self.passes[0])

    def works(self):
        return list(dict.fromkeys(name.work for name in self.names))

    def sizes(self, work):
        return sorted({name.size for name in self.names if name.work == work})

    def contenders(self, work):
        """The library first."""
        found = dict.fromkeys(name.contender for name in self.names if name.work == work)
        return sorted(found, key=lambda contender: contender != LIBRARY)

    def make_a_curve(self, work):
        """Whether there is more than one point; size 0 has no place on a logarithmic axis."""
        return len([size for size in self.sizes(work) if size > 0]) > 1

    def values(self, name, figure):
        """One value for each pass; None where the benchmark or its figure is missing."""
        if name not in self.passes[0]:
            return None
        if figure == "instructions":
            counted = self.instructions.get(name)
            return None if counted is None else [counted] * len(self.passes)
        if figure == "time":
            return [one[name].nanoseconds for one in self.passes]
        values = [one[name].counters.get(figure) for one in self.passes]
        return None if None in values else values

    def spread(self, name, figure="time"):
        values = self.values(name, figure)
        return None if values is None else spread_of(values)

    def ratio(self, numerator, denominator, figure="time"):
        """How many times the numerator's figure is of the denominator's; None where one is missing or a divisor 0."""
        values = self.values(numerator, figure), self.values(denominator, figure)
        return None if None in values else ratio_of(*values)

    def to_library(self, name, figure="time"):
        """How many times a contender's figure is of the library's, in the same work and size."""
        return self.ratio(name, BenchmarkName(name.work, name.size, LIBRARY), figure)

    def growth(self, work, contender, figure="time"):
        """The exponent fitted to the medians of the passes, and the lowest and highest of those fitted to one pass."""
        points = [(size, self.values(BenchmarkName(work, size, contender), figure)) for size in self.sizes(work)]
        points = [(size, values) for size, values in points if values is not None]
        fitted = exponent((size, median(values)) for size, values in points)
        if fitted is None:
            return None
        each = [exponent((size, values[one]) for size, values in points) for one in range(len(self.passes))]
        each = [one for one in each if one is not None]
        return Spread(fitted, min(each), max(each))

    def benchmark_as_json(self, name):
        counters = self.passes[0][name].counters
        written = {"time_ns": self.spread(name).rounded()}
        ratio = self.to_library(name)
        if name.contender != LIBRARY and ratio:
            written["time_to_library"] = ratio.rounded()
        written |= {counter: plain(median(self.values(name, counter)))
                    for counter in counters if self.values(name, counter) and counter != "checksum"}
        instructions = self.instructions.get(name)
        if instructions is not None:
            written["instructions"] = instructions
            if name.size > 0:
                written["instructions_per_target"] = plain(instructions / name.size)
        return written

    def work_as_json(self, work):
        growth = {contender: self.growth(work, contender) for contender in self.contenders(work)}
        written = {"growth": {contender: fitted.rounded() for contender, fitted in growth.items() if fitted},
                   "growth_fitted_from_size": LEAST_SIZE, "sizes": {}}
        for size in self.sizes(work):
            names = [BenchmarkName(work, size, contender) for contender in self.contenders(work)]
            names = [name for name in names if name in self.passes[0]]
            written["sizes"][str(size)] = {
                "checksum": self.passes[0][names[0]].counters["checksum"],
                "contenders": {name.contender: self.benchmark_as_json(name) for name in names}}
        return written

    def as_json(self):
        return {work: self.work_as_json(work) for work in self.works()}
