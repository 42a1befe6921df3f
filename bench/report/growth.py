"""How the time of a work grows with its size."""

from math import log

LEAST_SIZE = 100   # below, what does not depend on the size hides the growth
LEAST_POINTS = 3


def exponent(points):
    """The exponent e of "c * size ** e" that fits best, by least squares on the logarithms of sizes and values. Points
    with sizes below LEAST_SIZE or without a positive value are left out; None with fewer than LEAST_POINTS others."""
    logs = [(log(size), log(value)) for size, value in points if size >= LEAST_SIZE and value > 0]
    if len(logs) < LEAST_POINTS:
        return None
    middle_x = sum(x for x, _ in logs) / len(logs)
    middle_y = sum(y for _, y in logs) / len(logs)
    return sum((x - middle_x) * (y - middle_y) for x, y in logs) / sum((x - middle_x) ** 2 for x, _ in logs)
