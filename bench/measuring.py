"""Measures time and memory of programs in turns, counts their instructions, and checks that their answers are equal."""

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
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.append(str(Path(__file__).resolve().parents[1] / "tests/instructions"))

import callgrind  # noqa: E402


def one_line(answer):
    return answer.strip()


def as_json(answer):
    return json.loads(answer)


@dataclass
class Call:
    """A call of a program: one line as for a shell, or a list of arguments."""

    program: str
    command: object
    #: The command that prints the answer, if the call does not.
    answer: str = ""
    #: A command that runs before each run. It is not measured.
    prepare: str = ""
    #: The limit for the tool's time, as a multiple of this call's.
    time_bound: float = None
    #: Whether this is only a reference, not another program for the same task.
    reference: bool = False
    #: The greatest number of rounds for this call.
    rounds: int = 1000

    def arguments(self):
        return shlex.split(self.command) if isinstance(self.command, str) else self.command


@dataclass
class Samples:
    """The measurements of a call: for each round, one figure in each list."""

    seconds: list = field(default_factory=list)
    processor: list = field(default_factory=list)
    memory: list = field(default_factory=list)


def exponent(smaller, larger, factor):
    """Returns the power of the size with which a cost grows."""
    return math.log(larger / smaller) / math.log(factor)


class Measuring:
    """Runs programs in a folder."""

    def __init__(self, build, folder, quick):
        self.folder = folder
        self.quick = quick
        self.tool = str(build / "src/app/Kovalt")
        self.completion = str(build / "completion/complete")
        self.bare = str(build / "bench/bare_json")
        self.nothing = str(build / "bench/return_zero")
        self.time_call = str(build / "bench/time_call")

    def shell(self, command):
        """Runs a line of shell or a list of arguments. Returns its standard output."""
        arguments = ["sh", "-c", command] if isinstance(command, str) else command
        return subprocess.run(arguments, cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              check=True).stdout

    def check_answers(self, calls, normal=one_line, expected=None):
        """Exits unless all calls give the same answer."""
        first = expected
        for call in calls:
            if call.prepare:
                self.shell(call.prepare)
            answer = normal(self.shell(call.answer or call.arguments()))
            if first is None:
                first = answer
            if answer != first:
                raise SystemExit(f"{call.program} gives a different answer: {str(call.command)[:300]}")

    def run(self, call, runs=1):
        """Returns the medians of wall and processor time in seconds, and the peak memory in bytes."""
        with tempfile.NamedTemporaryFile(mode="r") as report:
            done = subprocess.run([self.time_call, report.name, str(runs)] + call.arguments(), cwd=self.folder,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
            if done.returncode != 0:
                raise SystemExit(f"{call.program} failed: {str(call.command)[:300]}")
            lines = [[float(figure) for figure in line.split()] for line in report]
        seconds, processor, memory = zip(*lines)
        return statistics.median(seconds), statistics.median(processor), int(max(memory))

    def in_turns(self, calls, rounds, runs=1, patience=2.5):
        """Returns the samples of each call. A call takes part in each round, until it has used up `patience`, in
        seconds, or its own number of rounds. The first call, with which the others are compared, takes part while any
        other does.
        """
        samples = [Samples() for _ in calls]
        if self.quick:
            rounds, runs = min(rounds, 2), min(runs, 2)
        for number in range(rounds):
            active = [position for position, (call, sample) in enumerate(zip(calls, samples))
                      if number < call.rounds and sum(sample.seconds) * runs < patience]
            if not active or (active == [0] and len(calls) > 1):
                break
            for position in sorted({0, *active}):
                if calls[position].prepare:
                    self.shell(calls[position].prepare)
                wall, processor, memory = self.run(calls[position], runs)
                samples[position].seconds.append(wall)
                samples[position].processor.append(processor)
                samples[position].memory.append(memory)
        return samples

    def instructions(self, command):
        """Returns the number of user-mode instructions, which is the same in every run."""
        program, *arguments = shlex.split(command) if isinstance(command, str) else command
        return callgrind.instructions(program, arguments, self.folder)

    def size(self, name):
        return (self.folder / name).stat().st_size


class Peers:
    """The programs to compare with: the installed ones of Debian, and the given versions of jq and jj."""

    def __init__(self, jq_paths, jj_paths):
        debian_jq = [shutil.which("jq")] if shutil.which("jq") else []
        self.jq = self._by_version(debian_jq + jq_paths)
        self.jj = self._by_version(jj_paths)
        self.missing = [name for name in ("crudini", "gron", "jo", "jq", "jshon", "yq") if shutil.which(name) is None]
        for name in self.missing:
            print(f"{name} is not installed, so it is left out", file=sys.stderr)

    @staticmethod
    def _by_version(paths):
        """Returns the paths by the name and version that the programs print."""
        programs = {}
        for path in paths:
            printed = subprocess.check_output([path, "--version"]).decode()
            name = re.match(r"\w+", printed).group()
            version = re.search(r"\d+(\.\d+)+", printed)
            programs[f"{name} {version.group() if version else ''}".strip()] = shlex.quote(os.path.abspath(path))
        return programs

    def jq_calls(self, line, **options):
        """Returns a call for each jq, whose path replaces `{jq}` in the line."""
        return [Call(name, line.replace("{jq}", path), **options) for name, path in self.jq.items()]

    def jj_calls(self, line, **options):
        return [Call(name, line.replace("{jj}", path), **options) for name, path in self.jj.items()]

    def debian(self, name, line, label=None, **options):
        """Returns a list of the call of a Debian program; empty if it is not installed."""
        return [] if name in self.missing else [Call(label or name, line, **options)]
