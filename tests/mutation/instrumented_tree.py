"""Copies the project and writes every mutant of the library into the copy, each behind a question whether it is
the chosen one, so that a single build holds them all."""

import re
import shutil
import subprocess
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

from mutation_operators import mutations
from source_regions import Source
from source_tokens import one_line

_MUTATED_FOLDERS = ("module", "datasource", "presets")

_CHOICE_HEADER = """#pragma once

#include <cstdlib>

/// Tells whether the environment chooses this mutant.
inline bool MutantChosen(int mutant) noexcept
{
    static const int chosen = [] {
        const char* text = std::getenv("STYLEPROPERTIES_MUTANT");
        return text == nullptr ? 0 : std::atoi(text);
    }();
    return mutant == chosen;
}
"""

# Only the library sees the mutated headers: tests and their host stay as they are, and need not be built anew.
_MUTATED_HEADERS = "mutated_headers"

# Assertions turn reads beyond the end, which may pass unseen, into failures.
_LIBRARY_OPTIONS = f"""
target_include_directories(styleproperties_objects BEFORE PRIVATE ${{PROJECT_SOURCE_DIR}}/{_MUTATED_HEADERS})
target_compile_options(styleproperties_objects PRIVATE -O1 -g0 -w -D_GLIBCXX_ASSERTIONS)
"""


@dataclass(frozen=True)
class Mutant:
    number: int
    file: str
    line: int
    operator: str
    function: str
    original: str
    mutated: str
    repetition: int  # counts from 1 where the same change is made more than once in a function


class _File:
    """One source with its mutants written in, except those left out."""

    def __init__(self, name, text, first_number):
        self.name, self.source = name, Source(text)
        self.candidates = {}  # by the region's identity: the mutants there
        self.mutants = []
        self.repetitions = Counter()
        self._collect(self.source.regions, first_number)

    def _collect(self, regions, number):
        for region in regions:
            original = one_line(self.source.text, self.source.tokens, region.start, region.end)
            line = self.source.text.count("\n", 0, self.source.tokens[region.start].start) + 1
            mine = []
            for operator, mutated in mutations(self.source, region):
                mine.append(self._mutant(number, line, operator, self.source.function_of(region), original, mutated))
                number += 1
            self.candidates[id(region)] = mine
            self.mutants += mine
            number = self._collect(region.inner, number)
        return number

    def _mutant(self, number, line, operator, function, original, mutated):
        change = (function, original, mutated)
        self.repetitions[change] += 1
        return Mutant(number, self.name, line, operator, *change, self.repetitions[change])

    def text(self, left_out):
        """The instrumented text, and the mutant of each of its lines that holds one."""
        writer = _Writer(self, left_out)
        keywords = {}
        self._find_keywords(self.source.regions, left_out, keywords)
        text = '#include "module/MutantChosen.h"\n' + writer.between(0, len(self.source.text), self.source.regions)
        for word in keywords:
            text = text.replace(f"constexpr {word} ", f"const {word} ")
        lines = {}
        for number, line in enumerate(text.split("\n"), 1):
            found = re.search(r"MutantChosen\((\d+)\)", line)
            if found:
                lines[number] = int(found.group(1))
        return text, lines

    def _find_keywords(self, regions, left_out, keywords):
        """What is declared by types whose constants become variables."""
        for region in regions:
            if region.keyword >= 0 and any(m.number not in left_out for m in self.candidates[id(region)]):
                tokens = self.source.tokens
                keywords[one_line(self.source.text, tokens, region.keyword + 1, region.start - 1)] = True


class _Writer:
    def __init__(self, file, left_out):
        self.file, self.left_out = file, left_out

    def between(self, start, end, regions):
        """The text from one offset to another, with what is written for the regions in it."""
        parts, tokens = [], self.file.source.tokens
        for region in regions:
            first, last = tokens[region.start].start, tokens[region.end - 1].end
            parts += [self.file.source.text[start:first], self._region(region, first, last)]
            start = last
        return "".join(parts) + self.file.source.text[start:end]

    def _region(self, region, first, last):
        original = self.between(first, last, region.inner)
        mutants = [m for m in self.file.candidates[id(region)] if m.number not in self.left_out]
        if not mutants:
            return original
        if region.kind == "loop":
            leave = f"\nif (MutantChosen({mutants[0].number})) break;\n"
            return original[:-1] + leave + "}" if original.endswith("}") and original.startswith("{") else \
                "{" + original + leave + "}"
        if region.kind in ("expression", "condition"):
            choices = "".join(f"\nMutantChosen({m.number}) ? ({m.mutated}) :" for m in mutants)
            return f"({choices}\n({original}))"
        choices = "".join(f"\nif (MutantChosen({m.number})) {{ {m.mutated} }} else" for m in mutants)
        return f"{{{choices}\n{{ {original} }} }}"


class InstrumentedTree:
    def __init__(self, project, folder):
        self.project, self.folder = Path(project), Path(folder)
        self.left_out = set()
        self.files = []
        # Headers first: changes of sources then leave the numbers in headers alone, which all sources include.
        for pattern in ("*.h", "*.cpp"):
            for path in sorted(path for folder in _MUTATED_FOLDERS for path in (self.project / folder).glob(pattern)):
                first = 1 + sum(len(file.mutants) for file in self.files)
                self.files.append(_File(str(path.relative_to(self.project)), path.read_text(), first))
        self.lines = {}

    @property
    def mutants(self):
        return [m for file in self.files for m in file.mutants if m.number not in self.left_out]

    def _project_files(self):
        listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard"],
                                cwd=self.project, check=True, capture_output=True, text=True)
        return listed.stdout.split("\n")[:-1]

    def copy_project(self):
        mutated = {file.name for file in self.files if file.name.endswith(".cpp")}
        for name in self._project_files():
            source, copy = self.project / name, self.folder / name
            if name in mutated or not source.is_file():
                continue
            copy.parent.mkdir(parents=True, exist_ok=True)
            if name == "module/CMakeLists.txt":
                _write_if_other(copy, source.read_text() + _LIBRARY_OPTIONS)
            elif not copy.is_file() or copy.read_bytes() != source.read_bytes():
                shutil.copy(source, copy)
        _write_if_other(self.folder / _MUTATED_HEADERS / "module/MutantChosen.h", _CHOICE_HEADER)

    def write(self):
        for file in self.files:
            text, lines = file.text(self.left_out)
            place = self.folder / (_MUTATED_HEADERS if file.name.endswith(".h") else ".") / file.name
            self.lines[str(place)] = lines
            _write_if_other(place, text)

    def leave_out_what_does_not_compile(self, commands, jobs):
        """Asks the compiler about each source, leaves out the mutants that it refuses, and asks again.

        `commands` holds the command for each source, by its name."""
        waiting = dict(commands)
        while waiting:
            with ThreadPoolExecutor(jobs) as pool:
                told = dict(zip(waiting, pool.map(_errors_of, waiting.values())))
            refused = set()
            for name, errors in told.items():
                if errors is None:
                    del waiting[name]
                    continue
                blamed = self._blamed(errors)
                if not blamed:
                    raise RuntimeError(f"{name} does not compile, and not for a mutant:\n{errors[:4000]}")
                refused |= blamed
            self.left_out |= refused
            self.write()

    def _blamed(self, messages):
        """The mutants in whose lines errors lie, or else those that an instantiation was required from."""
        for pattern in (r"^(/[^:\n]+):(\d+):\d+: (?:fatal )?error:", r"^(/[^:\n]+):(\d+):\d+:\s+required from"):
            places = re.findall(pattern, messages, re.MULTILINE)
            blamed = {self.lines[path][int(line)] for path, line in places
                      if int(line) in self.lines.get(path, ())}
            if blamed:
                return blamed
        return set()


def _write_if_other(path, text):
    """Leaves a file alone that says the same already, so that it is not built again."""
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.is_file() or path.read_text() != text:
        path.write_text(text)


def _errors_of(command):
    """What the compiler has against a source; None when it has nothing."""
    told = subprocess.run(command, shell=True, capture_output=True, text=True)
    return None if told.returncode == 0 else told.stderr
