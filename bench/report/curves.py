"""Draws the time of a work by its size, a line for each contender. The same figures give the same bytes."""

from math import ceil, floor, log10

import matplotlib
from matplotlib.backends.backend_svg import FigureCanvasSVG
from matplotlib.figure import Figure
from matplotlib.ticker import FuncFormatter, LogLocator, NullLocator

import amounts
from figures import label
from passes import BenchmarkName

# Told apart by shape as well as by colour.
LOOKS = {"library": ("#0b5394", "o", 2.4), "floor": ("#6b6b6b", "v", 1.4), "floor_calls": ("#a0a0a0", "<", 1.4),
         "plain_map": ("#c1701f", "s", 1.4), "qt": ("#3c8a3c", "D", 1.4), "gobject": ("#8a4fa0", "^", 1.4),
         "pugixml": ("#b03a48", "P", 1.4)}
OTHER_LOOK = ("#000000", "x", 1.4)
SETTINGS = {"svg.hashsalt": "styleproperties", "svg.fonttype": "path", "font.family": "DejaVu Sans", "font.size": 10}
NO_METADATA = {"Date": None, "Creator": None}


def points_of(figures, work, contender):
    """Sizes with the spreads of their times; size 0 has no place on a logarithmic axis."""
    points = [(size, figures.spread(BenchmarkName(work, size, contender))) for size in figures.sizes(work) if size > 0]
    return [(size, spread) for size, spread in points if spread is not None]


def draw_lines(axes, figures, work):
    for contender in figures.contenders(work):
        points = points_of(figures, work, contender)
        if not points:
            continue
        color, marker, width = LOOKS.get(contender, OTHER_LOOK)
        times = [spread.median for _, spread in points]
        spreads = [[spread.median - spread.lowest for _, spread in points],
                   [spread.highest - spread.median for _, spread in points]]
        axes.errorbar([size for size, _ in points], times, yerr=spreads, label=label(contender), color=color,
                      marker=marker, markersize=5, linewidth=width, elinewidth=0.9, capsize=2.5)


def whole_decades(axes):
    """So that there is a labelled line below and one above what is drawn."""
    lowest, highest = axes.dataLim.intervaly
    axes.set_ylim(10 ** floor(log10(lowest)) * 0.9, 10 ** ceil(log10(highest)) * 1.1)


def short_time(nanoseconds):
    return amounts.scaled(nanoseconds, ("ns", "µs", "ms", "s"), 1000).replace(".00 ", " ").replace(".0 ", " ")


def draw(figures, work, title, size_name, path):
    """Writes the picture of one work; the format is that of the path's ending."""
    with matplotlib.rc_context(SETTINGS):
        picture = Figure(figsize=(7.2, 4.6), layout="constrained")
        FigureCanvasSVG(picture)
        axes = picture.add_subplot()
        axes.set(xscale="log", yscale="log", title=title, xlabel=size_name, ylabel="time of one operation")
        draw_lines(axes, figures, work)
        sizes = [size for size in figures.sizes(work) if size > 0]
        axes.set_xticks(sizes)
        axes.xaxis.set_major_formatter(FuncFormatter(lambda size, _: f"{size:,.0f}"))
        axes.xaxis.set_minor_locator(NullLocator())
        whole_decades(axes)
        axes.yaxis.set_major_locator(LogLocator(numticks=12))
        axes.yaxis.set_major_formatter(FuncFormatter(lambda time, _: short_time(time)))
        axes.grid(True, which="major", color="#dddddd", linewidth=0.7)
        axes.legend(frameon=False)
        picture.savefig(path, facecolor="white", metadata=NO_METADATA if path.suffix == ".svg" else None)
