"""Whoever does a work has to come to the same result, or the times say nothing."""

from passes import UnusableResults


def demand_same_checksums(passes):
    """Refuses results in which the contenders of one work and size, or the passes, have different checksums."""
    seen = {}
    for one in passes:
        for name, measurement in one.measurements.items():
            seen.setdefault((name.work, name.size), {}).setdefault(measurement.counters["checksum"], set()).add(
                name.contender)
    wrong = [f"  {work}, size {size}: " + ", ".join(
        f'{value!r} ({", ".join(sorted(contenders))})' for value, contenders in sorted(by_value.items()))
             for (work, size), by_value in sorted(seen.items()) if len(by_value) > 1]
    if wrong:
        raise UnusableResults("Different checksums; expected one for each work and size:\n" + "\n".join(wrong))
