"""Reads the list of mutants that no test can notice, each with the reason.

An entry is a block of lines: the file and the function, the original behind "- ", the mutated text behind "+ ",
and the reason, indented. Where a function has the same change more than once, "#2" after the function's name
stands for the second. Entries are separated by empty lines; lines that begin with "#" are notes."""

from pathlib import Path


def key_of(mutant):
    function = mutant.function + (f" #{mutant.repetition}" if mutant.repetition > 1 else "")
    return f"{mutant.file}, {function}", mutant.original, mutant.mutated


def read_known_survivors(path):
    """The reason by the mutant's key."""
    known = {}
    for block in Path(path).read_text().split("\n\n"):
        lines = [line for line in block.split("\n") if line and not line.startswith("#")]
        if not lines:
            continue
        if len(lines) < 4 or not lines[1].startswith("- ") or not lines[2].startswith("+ "):
            raise ValueError(f"{path}: expected a place, '- ', '+ ' and a reason, but found:\n{block}")
        known[lines[0], lines[1][2:], lines[2][2:]] = " ".join(line.strip() for line in lines[3:])
    return known


def entry_of(mutant):
    """The mutant as the list would hold it, without a reason."""
    place, original, mutated = key_of(mutant)
    return f"{place}\n- {original}\n+ {mutated}"
