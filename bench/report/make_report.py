#!/usr/bin/env python3
"""Reads what bench/run measured, prints it, and writes it into a folder: figures.json, a curve for each work, and the
tables into the page."""

import argparse
import json
import sys
from pathlib import Path

sys.dont_write_bytecode = True  # nothing beside the sources
import bars
import checksums
import machine
import page
import terminal
from figures import Figures
from instructions import read_instructions
from passes import UnusableResults, read_passes


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("passes", nargs="+", type=Path, help="the JSON of each pass")
    parser.add_argument("--instructions", type=Path, required=True, metavar="FOLDER", help="what callgrind wrote")
    parser.add_argument("--bars", type=Path, required=True, metavar="FILE", help="the works with their bars")
    parser.add_argument("--build", type=Path, required=True, metavar="FOLDER", help="where the benchmarks were built")
    parser.add_argument("--least-seconds", type=float, required=True, help="how long each benchmark ran at least")
    parser.add_argument("--output", type=Path, required=True, metavar="FOLDER", help="for figures.json and the curves")
    parser.add_argument("--page", type=Path, metavar="FILE", help="the page to write the tables into")
    return parser.parse_args()


def draw_curves(figures, works, folder):
    """Curves of works that are gone are removed."""
    import curves  # the only part that needs more than Python itself
    for path in folder.glob("*.svg"):
        if path.stem not in figures.works():
            path.unlink()
    for work in figures.works():
        if figures.make_a_curve(work):
            entry = works.get(work, {})
            curves.draw(figures, work, entry.get("title", work), entry.get("size", "size"), folder / f"{work}.svg")


def main():
    options = arguments()
    passes = read_passes(options.passes)
    checksums.demand_same_checksums(passes)
    works = bars.read_works(options.bars)
    figures = Figures(passes, read_instructions(options.instructions))
    verdicts = bars.judge_all(figures, works)
    run = machine.describe(passes, options.build, options.least_seconds)
    terminal.print_report(figures, verdicts)

    options.output.mkdir(parents=True, exist_ok=True)
    written = {"run": run, "bars": [bars.as_json(verdict) for verdict in verdicts], "works": figures.as_json()}
    (options.output / "figures.json").write_text(json.dumps(written, indent=1, ensure_ascii=False) + "\n",
                                                 encoding="utf-8")
    draw_curves(figures, works, options.output)
    if options.page:
        page.write_into(options.page, page.figures_text(figures, works, verdicts, run))
    print(f"Written: {options.output}/figures.json and the curves" + (f", {options.page}" if options.page else ""))


if __name__ == "__main__":
    try:
        main()
    except UnusableResults as error:
        sys.exit(f"bench/run: {error}")
