"""Prints the figures as tables of fixed columns."""

import amounts
from figures import COUNTED, LIBRARY
from passes import BenchmarkName


def print_columns(rows):
    """The first column to the left, the others to the right."""
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    for row in rows:
        cells = [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])]
        print("  ".join([row[0].ljust(widths[0]), *cells]).rstrip())
    print()


def row_of(figures, name):
    ratio = figures.to_library(name) if name.contender != LIBRARY else None
    counts = {figure: figures.spread(name, figure) for figure in COUNTED}
    instructions = figures.instructions.get(name)
    row = [str(name), amounts.time(figures.spread(name).median),
           amounts.with_spread(ratio) if ratio else ""]
    for figure, count in counts.items():
        form = amounts.count if figure == "allocations" else amounts.size_in_bytes
        row.append(form(count.median) if count else "-")
    for_each = instructions / name.size if instructions is not None and name.size > 0 else None
    return [*row, amounts.count(instructions), amounts.count(for_each)]


def print_work(figures, work):
    rows = [["", "time", "of the library's", *COUNTED, "instructions", "for each"]]
    for size in figures.sizes(work):
        names = [BenchmarkName(work, size, contender) for contender in figures.contenders(work)]
        rows += [row_of(figures, name) for name in names if figures.spread(name)]
    print_columns(rows)
    growth = {contender: figures.growth(work, contender) for contender in figures.contenders(work)}
    fitted = [f"{contender} {amounts.exponent(one)}" for contender, one in growth.items() if one]
    if fitted:
        print(f"{work} grows with the exponent: {', '.join(fitted)}\n")


def print_verdicts(verdicts):
    rows = [["", "measured", ""]]
    rows += [[f"{verdict.work} {verdict.demand}", amounts.with_spread(verdict.measured), verdict.outcome()]
             for verdict in verdicts if verdict.measured]
    if len(rows) > 1:
        print_columns(rows)
    outcomes = [verdict.outcome() for verdict in verdicts]
    print("Bars: " + ", ".join(f"{outcomes.count(outcome)} {outcome}" for outcome in ("met", "missed", "not measured")))


def print_report(figures, verdicts):
    for work in figures.works():
        print_work(figures, work)
    print_verdicts(verdicts)
