"""Writes the figures into the page between its two markers, as tables and pictures."""

from pathlib import Path

import amounts
from figures import COUNTED, LIBRARY, label
from growth import LEAST_SIZE
from passes import BenchmarkName, UnusableResults

BEGIN = "<!-- figures: from here to the other marker, bench/run writes -->"
END = "<!-- figures: end -->"


def table(header, rows):
    return "\n".join("| " + " | ".join(row) + " |" for row in [header, ["---"] * len(header), *rows]) + "\n"


def about(run):
    machine = run["machine"]
    processor = f"{machine['processor']}, {machine['cores']} cores, {machine['mhz']} MHz"
    rows = [["Date", run["date"]], ["Processor", processor],
            ["Caches", ", ".join(machine["caches"])], ["Memory", machine["memory"]], ["System", machine["system"]],
            ["Compiler", run["compiler"]], ["Flags", f"`{run['flags']}`"],
            ["Others", ", ".join(f"{name} {version}" for name, version in run["libraries"].items())],
            ["Passes", f"{run['passes']}, at least {run['least_seconds_for_each_benchmark']} s for each benchmark"]]
    return table(["", ""], rows)


def verdicts_table(verdicts):
    rows = [[f"`{verdict.work}`", verdict.demand, amounts.with_spread(verdict.measured) if verdict.measured else "-",
             verdict.outcome() if verdict.holds else f"**{verdict.outcome()}**"] for verdict in verdicts]
    return table(["Work", "What must hold", "Measured", ""], rows)


def times_table(figures, work, size_name):
    """The library's time and, for each other contender, how many times that is its own."""
    others = [contender for contender in figures.contenders(work) if contender != LIBRARY]
    rows = []
    for size in figures.sizes(work):
        row = [f"{size:,}"]
        library = figures.spread(BenchmarkName(work, size, LIBRARY))
        row.append(amounts.with_spread(library, amounts.time) if library else "-")
        for contender in others:
            ratio = figures.to_library(BenchmarkName(work, size, contender))
            row.append(f"× {amounts.with_spread(ratio)}" if ratio else "-")
        rows.append(row)
    growth = [figures.growth(work, contender) for contender in [LIBRARY, *others]]
    if any(growth):
        rows.append(["growth", *(amounts.exponent(fitted) if fitted else "-" for fitted in growth)])
    return table([size_name, "library", *map(label, others)], rows)


def counts_table(figures, work, size_name):
    """What one operation of the library takes."""
    rows = []
    for size in figures.sizes(work):
        name = BenchmarkName(work, size, LIBRARY)
        if figures.spread(name) is None:
            continue
        counts = [figures.spread(name, figure) for figure in COUNTED]
        allocations, *amounts_of_memory = [count.median if count else None for count in counts]
        instructions = figures.instructions.get(name)
        for_each = instructions / size if instructions is not None and size > 0 else None
        rows.append([f"{size:,}", amounts.count(allocations),
                     *("-" if count is None else amounts.size_in_bytes(count) for count in amounts_of_memory),
                     amounts.count(instructions), amounts.count(for_each)])
    return table([size_name, "allocations", "bytes", "kept", "peak", "instructions", "for each"], rows)


def section(figures, work, entry):
    size_name = entry.get("size", "size")
    parts = [f"### {entry.get('title', work)}\n", f"`{work}`\n"]
    if figures.make_a_curve(work):
        parts.append(f"![Time of one operation by {size_name}, for each contender](performance/{work}.svg)\n")
    return "\n".join([*parts, times_table(figures, work, size_name), counts_table(figures, work, size_name)])


def figures_text(figures, works, verdicts, run):
    parts = [f"## What must hold\n\n{verdicts_table(verdicts)}",
             "## Figures\n\nThe library's time for one operation, and how many times that the others take, with the "
             f"range over the passes. Growth is the exponent fitted to the sizes from {LEAST_SIZE} on. The counts are "
             "the library's, for one operation.\n", about(run)]
    parts += [section(figures, work, works.get(work, {})) for work in figures.works()]
    return "\n".join(parts)


def write_into(page, text):
    """Replaces what stands between the markers, and nothing else."""
    page = Path(page)
    before, begin, rest = page.read_text(encoding="utf-8").partition(BEGIN)
    _, end, after = rest.partition(END)
    if not begin or not end:
        raise UnusableResults(f'{page}: no place for the figures; expected the lines "{BEGIN}" and "{END}"')
    page.write_text(f"{before}{BEGIN}\n\n{text}\n{END}{after}", encoding="utf-8")
