"""Runs the library's suites on one mutant after the other, until one of them notices it."""

import os
import resource
import subprocess
import tempfile
from dataclasses import dataclass, field

# What a suite may use beyond what it uses without a mutant. Processor time counts, so that a busy machine alone
# ends nothing; the clock is for what waits for ever.
_CPU_FACTOR, _LEAST_CPU_SECONDS, _MOST_WALL_SECONDS = 10, 5, 600
_MOST_MEMORY = 2 << 30

_MEMORY_TESTS = ("StyleListFormat.HoldsNoMoreMemoryThanTheListBuiltLast:"
                 "StyleResourceList.HoldsTheMemoryOfOneListHoweverOftenItIsOpened")


@dataclass
class Suite:
    program: str
    filter: str = "*"
    environment: dict = field(default_factory=dict)
    is_slow: bool = False
    cpu_limit: int = 600

    @property
    def name(self):
        return self.program + (" (the slow ones)" if self.filter == _MEMORY_TESTS else "")


# In the order in which they are asked: the quick ones, which catch nearly all, first.
SUITES = [
    Suite("datasource_internals_tests"),
    Suite("presets_tests"),
    Suite("module_internal_tests", environment={"STYLEPROPS_CONFIG_DIR": "/configuration/of/these/tests"}),
    Suite("module_tests"),
    Suite("module_virtual_order_tests"),
    Suite("datasource_tests", filter=f"-{_MEMORY_TESTS}"),
    Suite("datasource_replaced_host_tests"),
    Suite("faults_internals_tests"),
    Suite("faults_lifetime_tests"),
    Suite("module_exit_tests"),
    Suite("module_loading_tests"),
    Suite("datasource_tests_on_tiny_host", filter=f"-{_MEMORY_TESTS}"),
    Suite("library_model_tests", filter="*RandomOperations*", environment={"STYLEPROPERTIES_MODEL_STEPS": "3000"}),
    Suite("datasource_tests", filter=_MEMORY_TESTS, is_slow=True),
    Suite("faults_tests", is_slow=True),
]

PROGRAMS = sorted({suite.program for suite in SUITES})


def leave_out_slow_ones():
    SUITES[:] = [suite for suite in SUITES if not suite.is_slow]


def measure(programs):
    """Runs every suite without a mutant, and allots each its limits; an error when one fails."""
    for suite in SUITES:
        before = _cpu_of_children()
        outcome = _run(programs, suite, 0)
        used = _cpu_of_children() - before
        if outcome is not None:
            raise RuntimeError(f"{suite.name} fails without any mutant: {outcome}")
        suite.cpu_limit = int(max(_LEAST_CPU_SECONDS, _CPU_FACTOR * used)) + 1


def kill(programs, mutant):
    """What noticed the mutant, and how; None when every suite passes."""
    for suite in SUITES:
        outcome = _run(programs, suite, mutant.number)
        if outcome is not None:
            return f"{suite.name}: {outcome}"
    return None


def _run(programs, suite, mutant):
    """How the suite failed; None when it passed."""
    def limit():
        resource.setrlimit(resource.RLIMIT_CPU, (suite.cpu_limit, suite.cpu_limit + 1))
        resource.setrlimit(resource.RLIMIT_AS, (_MOST_MEMORY, _MOST_MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    command = [str(programs / suite.program), f"--gtest_filter={suite.filter}", "--gtest_fail_fast=1",
               "--gtest_brief=1"]
    with tempfile.TemporaryDirectory(prefix="mutant-") as folder:
        environment = {**os.environ, "HOME": folder, "TMPDIR": folder, **suite.environment,
                       "STYLEPROPERTIES_MUTANT": str(mutant)}
        process = subprocess.Popen(command, cwd=folder, env=environment, preexec_fn=limit, start_new_session=True,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        try:
            told = process.communicate(timeout=_MOST_WALL_SECONDS)[0].decode(errors="replace")
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, 9)
            process.communicate()
            return "waits for ever"
    if process.returncode < 0:
        return "takes too long" if process.returncode in (-24, -9) else f"signal {-process.returncode}"
    # A program that ends before its tests do would else pass.
    if process.returncode == 0 and "[  PASSED  ]" in told:
        return None
    failed = [line.split()[3].rstrip(",") for line in told.split("\n") if line.startswith("[  FAILED  ]")]
    return failed[0] if failed else f"status {process.returncode}"


def _cpu_of_children():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime
