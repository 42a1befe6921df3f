"""On what the benchmarks ran, and how they were built: without names of machines, people or folders."""

import json
import platform
import re
import shlex
import subprocess
from pathlib import Path

# What decides over the machine code; warnings and folders do not.
DECISIVE_FLAG = re.compile(r"-(O|g|m|f(?!visibility)|std=|DNDEBUG|[DU]_)")
LIBRARIES = {"Qt": "Qt6Core", "GObject": "gobject-2.0", "pugixml": "pugixml", "Google Benchmark": "benchmark"}


def first_line(*command):
    """What a program prints first; "unknown" where there is no such program or no such answer."""
    try:
        printed = subprocess.run(command, capture_output=True, text=True, check=True).stdout
    except (OSError, subprocess.CalledProcessError):
        return "unknown"
    return printed.partition("\n")[0].strip()


def value_in(path, pattern):
    try:
        found = re.search(pattern, Path(path).read_text(encoding="utf-8"), re.MULTILINE)
    except OSError:
        found = None
    return found[1].strip() if found else "unknown"


def describe_processor(context):
    caches = [f"L{cache['level']} {cache['type'].lower()} {cache['size'] // 1024} KiB" for cache in context["caches"]]
    memory = value_in("/proc/meminfo", r"^MemTotal:\s*(\d+) kB")
    return {"processor": value_in("/proc/cpuinfo", r"^model name\s*:\s*(.+)$"),
            "cores": context["num_cpus"],
            "mhz": context["mhz_per_cpu"],
            "caches": caches,
            "memory": f"{int(memory) / 1024 ** 2:.1f} GiB" if memory != "unknown" else memory,
            "system": f"{value_in('/etc/os-release', 'PRETTY_NAME=.(.+).$')}, {platform.system()} {platform.machine()}"}


def describe_build(build):
    """How the program of the build folder was compiled."""
    entries = json.loads((Path(build) / "compile_commands.json").read_text(encoding="utf-8"))
    commands = [entry["command"] for entry in entries if "styleproperties_bench.dir" in entry["command"]]
    command = shlex.split(commands[0])
    return {"compiler": first_line(command[0], "--version"),
            "flags": " ".join(word for word in command if DECISIVE_FLAG.match(word))}


def describe_libraries():
    return {name: first_line("pkg-config", "--modversion", module) for name, module in LIBRARIES.items()}


def describe(passes, build, least_seconds):
    """Everything that somebody needs who compares figures of two runs."""
    return {"date": passes[0].context["date"][:10],
            "commit": first_line("git", "-C", str(Path(__file__).parent), "describe", "--always", "--dirty"),
            "passes": len(passes),
            "least_seconds_for_each_benchmark": least_seconds,
            "load_average_at_each_pass": [round(one.context["load_avg"][0], 2) for one in passes],
            "machine": describe_processor(passes[0].context),
            **describe_build(build),
            "libraries": describe_libraries()}
