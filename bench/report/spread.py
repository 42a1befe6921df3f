"""What several passes say of one thing."""

from statistics import median
from typing import NamedTuple


class Spread(NamedTuple):
    """The median of the passes, the lowest and the highest of them."""
    median: float
    lowest: float
    highest: float

    def rounded(self):
        """To five digits, for files; the passes do not agree on more."""
        return {name: float(f"{value:.5g}") for name, value in self._asdict().items()}


def spread_of(values):
    values = list(values)
    return Spread(median(values), min(values), max(values))


def ratio_of(numerators, denominators):
    """The spread of the ratio within each pass: what disturbs a whole pass disturbs both of its parts. None where a
    denominator is 0."""
    pairs = list(zip(numerators, denominators))
    if any(denominator == 0 for _, denominator in pairs):
        return None
    return spread_of(numerator / denominator for numerator, denominator in pairs)
