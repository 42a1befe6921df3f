"""Numbers as people read them."""

from math import floor, log10


def scaled(value, units, step):
    """Three digits and the largest of `units` that leaves at least 1 before the point."""
    unit = 0
    while unit + 1 < len(units) and abs(value) >= step * 0.9995:  # what would be rounded to the next unit
        value /= step
        unit += 1
    return f"{three_digits(value)} {units[unit]}"


def three_digits(value):
    """Three digits that count, or all before the point."""
    value = float(f"{value:.3g}")
    if value == 0:
        return "0"
    before_point = floor(log10(abs(value))) + 1
    return f"{value:,.0f}" if before_point > 2 else f"{value:.{3 - before_point}f}"


def time(nanoseconds):
    return scaled(nanoseconds, ("ns", "µs", "ms", "s"), 1000)


def size_in_bytes(count):
    return f"{count:,.0f} B" if abs(count) < 10_000 else scaled(count / 1024, ("KiB", "MiB", "GiB"), 1024)


def count(number):
    """Whole to a million, then in millions; what is not whole has three digits."""
    if number is None:
        return "-"
    if abs(number) >= 1_000_000:
        return f"{three_digits(number / 1_000_000)} M"
    return f"{number:,.0f}" if float(number).is_integer() else three_digits(number)


def with_spread(spread, form=three_digits):
    """The median, and in brackets what the passes range over where that shows."""
    low, middle, high = form(spread.lowest), form(spread.median), form(spread.highest)
    return middle if low == high == middle else f"{middle} ({low} to {high})"


def exponent(spread):
    return with_spread(spread, lambda value: f"{value:.3f}")
