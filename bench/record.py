"""Collects the figures of a run as plain data, and checks them against their limits."""

import statistics

from measuring import Call, exponent


def rounded(value):
    """Rounds a measured figure to four significant digits."""
    return float(f"{value:.4g}")


class Record:
    """The figures of a run, in groups.

    A comparison has a row for each program, with the tool in the first. `times` and `memory_times` are multiples of the
    tool's figures, so above 1 the tool is better. A growth has the tool's figures for several sizes. `held` says
    whether a limit is met.
    """

    def __init__(self, measuring):
        self.measuring = measuring
        self.comparisons = []
        self.growth = []
        self.bounds = []

    def judge(self, group, work, what, value, at_most=None, at_least=None):
        held = value <= at_most if at_least is None else value >= at_least
        bound = {"group": group, "work": work, "what": what, "value": rounded(value), "held": held}
        bound |= {"at_most": at_most} if at_least is None else {"at_least": rounded(at_least)}
        self.bounds.append(bound)
        limit = f"at most {at_most:,}" if at_least is None else f"at least {at_least:.2f}"
        print(f"{group}: {work}: {what}: {value:,.3f} ({limit}: {'held' if held else 'MISSED'})", flush=True)
        return bound

    def compare(self, group, work, calls, rounds=21, runs=1, patience=2.5, size=None, memory_at_most=None):
        """Measures calls in turns. The first one is the tool's."""
        samples = self.measuring.in_turns(calls, rounds, runs, patience)
        tool = samples[0]
        rows = []
        for call, sample in zip(calls, samples):
            row = {"program": call.program, "seconds": rounded(statistics.median(sample.seconds)),
                   "memory": max(sample.memory), "rounds": len(sample.seconds)}
            if sample is not tool:
                row["times"] = rounded(statistics.median(
                    theirs / ours for theirs, ours in zip(sample.seconds, tool.seconds)))
                row["memory_times"] = rounded(max(sample.memory) / max(tool.memory))
                row["reference"] = call.reference
                row["ahead"] = row["times"] < 1 and not call.reference
                row["ahead_in_memory"] = row["memory_times"] < 1 and not call.reference
                if call.time_bound is not None:
                    row["bound"] = self.judge(group, work, f"time of {call.program}, times Kovalt's", row["times"],
                                              at_least=1 / call.time_bound)
            rows.append(row)
        comparison = {"group": group, "work": work, "rows": rows}
        if size is not None:
            comparison["file_bytes"] = size
            if memory_at_most is not None:
                rows[0]["bound"] = self.judge(group, work, "peak memory", rows[0]["memory"],
                                              at_most=memory_at_most)
        self.comparisons.append(comparison)
        print(f"{group}: {work}: " + ", ".join(
            f"{row['program']} {row['seconds']:g} s {row['memory'] / 1e6:.1f} MB"
            + (f" ({row['times']:.2f} times)" if "times" in row else "") for row in rows), flush=True)

    def grow(self, group, work, sizes, command_of, rounds=11, patience=2.5):
        """Measures the tool at three sizes, and judges two exponents: that of the instructions between the first two,
        and that of the processor time between the last two. If a call is too slow to count its instructions, judges
        only the exponent of the processor time between the first two, and does not measure the third size."""
        measuring = self.measuring
        calls = [Call("Kovalt", command_of(size)) for size in sizes]
        small, middle, large = sizes
        row = {"group": group, "work": work, "sizes": sizes}
        seconds, processor, _ = zip(*(measuring.run(call) for call in calls[:2]))
        if processor[1] > 0.3:
            row |= {"seconds": [rounded(value) for value in seconds] + [None], "instructions": None}
            self.judge(group, work, f"exponent in time, {small:,} to {middle:,}; too slow to count",
                       exponent(*processor, middle / small), at_most=1.15)
        else:
            counts = [measuring.instructions(call.arguments()) for call in calls[:2]]
            samples = measuring.in_turns(calls[1:], rounds, patience=patience)
            medians = [statistics.median(sample.seconds) for sample in samples]
            row |= {"instructions": counts, "seconds": [rounded(value) for value in [seconds[0], *medians]]}
            self.judge(group, work, f"exponent in instructions, {small:,} to {middle:,}",
                       exponent(*counts, middle / small), at_most=1.15)
            ratio = statistics.median(
                after / before for before, after in zip(samples[0].processor, samples[1].processor))
            self.judge(group, work, f"exponent in time, {middle:,} to {large:,}", exponent(1, ratio, large / middle),
                       at_most=1.4)
        self.growth.append(row)

    def as_data(self):
        return {"comparisons": self.comparisons, "growth": self.growth, "bounds": self.bounds}
