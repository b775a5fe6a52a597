"""Runs programs and measures them: time and memory in turns, instructions, and whether the answers are equal."""

import json
import math
import os
import re
import shlex
import shutil
import statistics
import subprocess
import sys
import tempfile
from dataclasses import dataclass, field


def one_line(answer):
    return answer.strip()


def as_json(answer):
    return json.loads(answer)


@dataclass
class Call:
    """A program's call, as one shell-like line or as a list of arguments."""

    program: str
    command: object
    #: What prints its answer where the call itself does not; None where there is none that could be compared.
    answer: object = ""
    #: Runs before each run and is not measured.
    prepare: str = ""
    #: The tool may take at most so many times this call's time, or memory.
    time_bound: float = None
    memory_bound: float = None
    #: Whether it is a measure to compare with, not a program that does the same for people.
    reference: bool = False
    #: Most rounds that it takes part in.
    rounds: int = 1000

    def arguments(self):
        return shlex.split(self.command) if isinstance(self.command, str) else self.command


@dataclass
class Samples:
    """One figure a round of each."""

    seconds: list = field(default_factory=list)
    processor: list = field(default_factory=list)
    memory: list = field(default_factory=list)


def exponent(smaller, larger, factor):
    """The power of the size with which a cost grows."""
    return math.log(larger / smaller) / math.log(factor)


class Measuring:
    """What runs programs in one folder."""

    def __init__(self, build, folder, quick):
        self.folder = folder
        self.quick = quick
        self.tool = str(build / "src/app/Kovalt")
        self.completion = str(build / "completion/complete")
        self.bare = str(build / "bench/bare_json")
        self.nothing = str(build / "bench/return_zero")
        self.time_call = str(build / "bench/time_call")

    def shell(self, command):
        """Runs a line of shell, or a list of arguments, and gives its standard output."""
        arguments = ["sh", "-c", command] if isinstance(command, str) else command
        return subprocess.run(arguments, cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              check=True).stdout

    def check_answers(self, calls, normal=one_line, expected=None):
        """Ends the benchmark unless all calls give the same answer."""
        first = expected
        for call in calls:
            if call.answer is None:
                continue
            if call.prepare:
                self.shell(call.prepare)
            answer = normal(self.shell(call.answer or call.arguments()))
            if first is None:
                first = answer
            if answer != first:
                raise SystemExit(f"{call.program} gives a different answer: {str(call.command)[:300]}")

    def run(self, call, runs=1):
        """Median wall and processor seconds and the peak of memory in bytes."""
        with tempfile.NamedTemporaryFile(mode="r") as report:
            done = subprocess.run([self.time_call, report.name, str(runs)] + call.arguments(), cwd=self.folder,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
            if done.returncode != 0:
                raise SystemExit(f"{call.program} failed: {str(call.command)[:300]}")
            lines = [[float(figure) for figure in line.split()] for line in report]
        seconds, processor, memory = zip(*lines)
        return statistics.median(seconds), statistics.median(processor), int(max(memory))

    def in_turns(self, calls, rounds, runs=1, patience=2.5):
        """Samples of each call, one a round: as many rounds as asked for, but for calls that have used up the patience,
        which is in seconds, or their own number of rounds. The first call, with which the others are compared, takes
        part as long as any."""
        samples = [Samples() for _ in calls]
        if self.quick:
            rounds, runs = min(rounds, 2), min(runs, 3)
        for number in range(rounds):
            going = [position for position, (call, taken) in enumerate(zip(calls, samples))
                     if number < call.rounds and sum(taken.seconds) * runs < patience]
            if not going or (going == [0] and len(calls) > 1):
                break
            for position in sorted({0, *going}):
                if calls[position].prepare:
                    self.shell(calls[position].prepare)
                wall, processor, memory = self.run(calls[position], runs)
                samples[position].seconds.append(wall)
                samples[position].processor.append(processor)
                samples[position].memory.append(memory)
        return samples

    def instructions(self, command):
        """Instructions of user code, which are the same in every run."""
        arguments = shlex.split(command) if isinstance(command, str) else command
        with tempfile.NamedTemporaryFile(mode="r") as log:
            subprocess.run(
                # The start of a process looks through its environment: an empty one makes the count repeatable.
                ["env", "-i", f"PATH={os.environ['PATH']}", "valgrind", "--tool=callgrind",
                 "--callgrind-out-file=/dev/null", f"--log-file={log.name}"] + arguments,
                cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
            return int(re.search(r"Collected : (\d+)", log.read()).group(1))

    def size(self, name):
        return (self.folder / name).stat().st_size


class Peers:
    """The programs to compare with: those of Debian that are installed, and those of jq and jj that were named."""

    def __init__(self, jq_paths, jj_paths):
        debian_jq = [shutil.which("jq")] if shutil.which("jq") else []
        self.jq = self._by_version(debian_jq + jq_paths)
        self.jj = self._by_version(jj_paths)
        self.missing = [name for name in ("crudini", "gron", "jo", "jq", "jshon", "yq") if shutil.which(name) is None]
        for name in self.missing:
            print(f"{name} is not installed and left out", file=sys.stderr)

    @staticmethod
    def _by_version(paths):
        """Paths by the name and version that the program tells."""
        programs = {}
        for path in paths:
            told = subprocess.check_output([path, "--version"]).decode()
            name = re.match(r"\w+", told).group()
            version = re.search(r"\d+(\.\d+)+", told)
            programs[f"{name} {version.group() if version else ''}".strip()] = shlex.quote(os.path.abspath(path))
        return programs

    def jq_calls(self, line, **options):
        """One call for each jq; `{jq}` in the line stands for its path."""
        return [Call(name, line.replace("{jq}", path), **options) for name, path in self.jq.items()]

    def jj_calls(self, line, **options):
        return [Call(name, line.replace("{jj}", path), **options) for name, path in self.jj.items()]

    def debian(self, name, line, label=None, **options):
        """The call of a program of Debian, or none where it is not installed."""
        return [] if name in self.missing else [Call(label or name, line, **options)]
