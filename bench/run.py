"""Runs the benchmark: checks that the answers are equal, then measures in turns and prints one table of ratios.

Wall times are medians of hyperfine's runs, taken in turns, so that what else the machine does falls on all alike. The
time of growth is the processor's, which other programs disturb less. Instructions are counted by callgrind in user code
and are repeatable. A bound that is not held is marked, and so are the rows that the tool loses.
"""

import argparse
import json
import math
import os
import platform
import re
import shlex
import shutil
import statistics
import subprocess
import tempfile
from pathlib import Path

from make_data import SIZES, make

ROUNDS = 5


class Bench:
    def __init__(self, build, folder):
        self.folder = folder
        self.tool = str(build / "src/app/Kovalt")
        self.bare = str(build / "bench/bare_json")
        self.nothing = str(build / "bench/return_zero")
        self.rows = []
        self.missed = []

    def shell(self, command):
        return subprocess.run(["sh", "-c", command], cwd=self.folder, stdout=subprocess.PIPE, check=True).stdout

    def same(self, *commands, as_json=False):
        """Fails unless all commands print the same, or the same JSON value."""
        answers = [self.shell(command) for command in commands]
        if as_json:
            answers = [json.loads(answer) for answer in answers]
        if any(answer != answers[0] for answer in answers):
            raise SystemExit(f"different answers: {commands}")

    def rounds(self, *commands, runs=2, rounds=ROUNDS, shell=False):
        """Wall and processor seconds of each command in each round, measured in turns."""
        samples = [[] for _ in commands]
        with tempfile.NamedTemporaryFile(suffix=".json") as report:
            for _ in range(rounds):
                for taken, command in zip(samples, commands):
                    subprocess.run(
                        ["hyperfine", "--style=none", f"--runs={runs}", "--warmup=1", f"--export-json={report.name}"]
                        + ([] if shell else ["--shell=none"]) + [command],
                        cwd=self.folder, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                    result = json.load(open(report.name, encoding="utf-8"))["results"][0]
                    taken.append((result["median"], result["user"] + result["system"]))
        return samples

    def times(self, *commands, **options):
        """Median wall and processor seconds of each command."""
        return [tuple(statistics.median(column) for column in zip(*taken)) for taken in self.rounds(*commands, **options)]

    def ratio(self, ours, theirs, **options):
        """How many times the wall time of `theirs` `ours` takes: the median of the rounds, each compared with itself, so
        that a machine that changes its speed between two rounds does not count."""
        return statistics.median(
            mine[0] / other[0] for mine, other in zip(*self.rounds(ours, theirs, **options)))

    def instructions(self, command):
        run = subprocess.run(
            # The start of a process looks through its environment: an empty one makes the count repeatable.
            ["env", "-i", f"PATH={os.environ['PATH']}", "valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null"] + shlex.split(command),
            cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=True)
        return int(re.search(rb"Collected : (\d+)", run.stderr).group(1))

    def peak_memory(self, command):
        """Peak resident bytes."""
        with tempfile.NamedTemporaryFile() as report:
            subprocess.run(["/usr/bin/time", "--format=%M", f"--output={report.name}"] + shlex.split(command),
                           cwd=self.folder, stdout=subprocess.DEVNULL, check=True)
            return int(report.read().split()[-1]) * 1024

    def size(self, name):
        return os.path.getsize(self.folder / name)

    def row(self, work, measure, value, bound=None, loses=False):
        note = ""
        if bound is not None:
            held = value <= bound
            note = f"bound {bound:g}: {'held' if held else 'MISSED'}"
            if not held:
                self.missed.append(f"{work}, {measure}")
        elif loses:
            note = "lost"
        shown = f"{value:,.0f}" if value >= 1000 else f"{value:.2f}"
        line = f"| {work} | {measure} | {shown} | {note} |"
        self.rows.append(line)
        print(line, flush=True)

    def against(self, work, ours, peers, **options):
        """Rows of how many times the tool's time each peer takes."""
        measured = self.times(ours, *peers.values(), **options)
        for name, (wall, _) in zip(peers, measured[1:]):
            self.row(work, f"{name}: times the tool's time", wall / measured[0][0], loses=wall < measured[0][0])


def start_up(b):
    tool = b.tool
    add, read = f"{tool} --addString a.b c", f"{tool} --file small.json --read network.webSocketPort"
    (b.folder / "small.ini").write_text("[network]\nwebSocketPort = 8765\n")
    b.same(f"{add} | jq -c .", "jq -cn '{a:{b:\"c\"}}'", "jo -d. a.b=c")
    b.same(read, "jq .network.webSocketPort small.json", "yq .network.webSocketPort small.json",
           "jshon -e network -e webSocketPort < small.json", "crudini --get small.ini network webSocketPort")
    b.row("start-up, add", "instructions", b.instructions(add), 60_000)
    b.row("start-up, read", "instructions", b.instructions(read), 60_000)
    b.row("start-up, add", "times a static program that returns 0", b.ratio(add, b.nothing, runs=200), 1.25)
    b.against("start-up, add", add, {"jq": "jq -n '{a:{b:\"c\"}}'", "jo": "jo -d. a.b=c"}, runs=30)
    b.against("start-up, read", read, {
        "jq": "jq .network.webSocketPort small.json", "yq": "yq .network.webSocketPort small.json",
        "gron": "gron small.json", "jshon": "jshon -F small.json -e network -e webSocketPort",
        "crudini, from an INI file": "crudini --get small.ini network webSocketPort", "cat": "cat small.json"}, runs=30)

    edit = f"{tool} --file edited.json --addString network.host example"
    jq_edit = "sh -c \"jq '.network.host=\\\"example\\\"' jq_edited.json > new.json && mv new.json jq_edited.json\""
    b.shell("cp small.json edited.json; cp small.json jq_edited.json")
    b.shell(edit)
    b.shell(jq_edit)
    b.same("cat edited.json", "cat jq_edited.json", as_json=True)
    b.against("edit of a 20-line file", edit, {"jq and a rename": jq_edit}, runs=20)

    names = [f"setting{i}" for i in range(10)]
    many = (f"{tool} --file edited.json " + " ".join(f"--addString {name} new" for name in names) + " " +
            " ".join(f"--read {name}" for name in names[:5]))
    script = b.folder / "fifteen_jq_calls.sh"
    script.write_text("".join(f"jq '.{name}=\"new\"' jq_edited.json > new.json && mv new.json jq_edited.json\n"
                              for name in names) + "".join(f"jq -r .{name} jq_edited.json\n" for name in names[:5]))
    b.same(f"{many} | jq -r '.[]'", f"sh {script}")
    b.same("cat edited.json", "cat jq_edited.json", as_json=True)
    b.against("ten edits and five reads", many, {"15 jq calls": f"sh {script}"}, runs=5)


def large_files(b):
    tool, bare = b.tool, b.bare
    for megabytes in (5, 50, 200):
        name, work = f"large{megabytes}.json", f"{megabytes} MB"
        # Many where a round is short: a share of them falls on moments when the machine changes its speed. The largest
        # file is for the tool and the fastest peer only: the others would take minutes.
        rounds = {5: 21, 50: 11, 200: 5}[megabytes]
        read, bare_load = f"{tool} --file {name} --read meta.version", f"{bare} load {name}"
        b.same(read, f"jq .meta.version {name}")
        b.row(f"load, {work}", "time, times bare parse", b.ratio(read, bare_load, rounds=rounds), 1.0)

        # Both rewrite their own file in place; after the first time it is the indented text that is loaded.
        b.shell(f"cp {name} edited.json; cp {name} saved.json")
        edit, bare_save = f"{tool} --file edited.json --addNumber meta.version 1", f"{bare} save saved.json saved.json"
        b.shell(f"{edit} && {bare_save} && cmp edited.json saved.json")
        b.row(f"load, edit, save, {work}", "time, times bare parse and write",
              b.ratio(edit, bare_save, rounds=rounds), 1.0)

        display, plain = f"{tool} --file {name}", f"{bare} display {name}"
        b.shell(f"{display} > shown.json && {plain} > plain.json && cmp shown.json plain.json")
        b.row(f"display, {work}", "time, times the plain way", b.ratio(display, plain, rounds=rounds), 0.6)
        b.row(f"display, {work}", "peak memory, times the file", b.peak_memory(display) / b.size(name), 2.6)
        b.row(f"display the plain way, {work}", "peak memory, times the file", b.peak_memory(plain) / b.size(name))

        if megabytes == 5:
            for kind, ours_, theirs_ in (("load", read, bare_load), ("load, edit, save", edit, bare_save)):
                b.row(f"{kind}, {work}", "instructions, times bare", b.instructions(ours_) / b.instructions(theirs_), 1.0)
            b.row(f"display, {work}", "instructions, times the plain way",
                  b.instructions(display) / b.instructions(plain))
        peers = {"jq": f"jq .meta.version {name}"}
        if megabytes == 5:
            peers |= {"gron": f"gron {name}", "jshon": f"jshon -F {name} -e meta -e version"}
        b.against(f"read one key, {work}", read, peers | {"cat": f"cat {name}"}, runs=2,
                  rounds=1 if megabytes == 200 else 2)
        if megabytes < 200:
            jq_edit = f"sh -c \"jq .meta.version=1 {name} > new.json\""
            b.against(f"edit and save, {work}", edit, {"jq to a new file": jq_edit}, runs=2, rounds=2)
            b.against(f"display, {work}", display, {"jq": f"jq --indent 4 . {name}"}, runs=2, rounds=2)
        if megabytes == 5:
            # Once and for its memory only: it takes most of a minute.
            peers["yq"] = f"yq .meta.version {name}"
        for peer, command in {"tool": read, **peers}.items():
            b.row(f"read one key, {work}", f"{peer}: peak memory, times the file", b.peak_memory(command) / b.size(name))


def exponent(small, large, factor):
    return math.log(large / small) / math.log(factor)


def growth(b):
    tool = b.tool
    work = {
        "concatenation, all records distinct": "{t} --file distinct{n}.json --readObjectArrayConcat links id host",
        "concatenation, few distinct records": "{t} --file few{n}.json --readObjectArrayConcat links id host",
        "merge, distinct names": "{t} --addFile names_a{n}.json --addFile names_b{n}.json --read a1",
        "merge, same names": "{t} --addFile names_a{n}.json --addFile names_a{n}.json --read a1",
        "merge, below the root": "{t} --addFile below_a{n}.json --addFile below_a{n}.json --read top.a1",
        "merge of arrays": "{t} --addFile array{n}.json --addFile array{n}.json --readArrayComma list",
        "several reads": "{t} --file numbers{n}.json --read list --read list",
        "readArraySpace": "{t} --file strings{n}.json --readArraySpace list",
        "readArraySpaceNoQuote": "{t} --file strings{n}.json --readArraySpaceNoQuote list",
        "readArrayComma": "{t} --file strings{n}.json --readArrayComma list",
        "readArrayCommaNoQuote": "{t} --file numbers{n}.json --readArrayCommaNoQuote list",
    }
    for name, command in work.items():
        calls = [command.format(t=tool, n=size) for size in SIZES]
        counts = [b.instructions(call) for call in calls[:2]]
        b.row(name, "exponent in instructions, 10,000 to 100,000", exponent(*counts, 10), 1.15)
        times = [user for _, user in b.times(*calls, rounds=3)]
        b.row(name, "exponent in time, 100,000 to 1,000,000", exponent(*times[1:], 10), 1.4)

    size = SIZES[1]
    b.same(f"{tool} --file numbers{size}.json --readArray list", f"jq -r '.list|map(tostring)|join(\" \")' numbers{size}.json")
    # Not of a million elements: this jq joins in quadratic time.
    for kind in ("numbers", "strings"):
        b.against(f"array read, 100,000 {kind}", f"{tool} --file {kind}{size}.json --readArray list",
                  {"jq": f"jq -r '.list|map(tostring)|join(\" \")' {kind}{size}.json"}, rounds=1)
    merge = f"{tool} --addFile names_a{size}.json --addFile names_b{size}.json"
    jq_merge = f"jq -s '.[0]*.[1]' names_a{size}.json names_b{size}.json"
    b.same(merge, jq_merge, as_json=True)
    b.against("merge of two objects of 100,000 members", merge, {"jq": jq_merge}, rounds=2)
    concat = f"{tool} --file distinct{size}.json --readObjectArrayConcat links id host"
    jq_concat = (f"jq -r '[.links|group_by([.id,.host])[]|\"\\(.[0].id) \\(.[0].host)\" + "
                 f"(if length>1 then \"(\\(length))\" else \"\" end)]|sort|join(\" \")' distinct{size}.json")
    b.same(concat, jq_concat)
    b.against("concatenation of 100,000 records", concat, {"jq": jq_concat}, rounds=2)


def versions():
    packages = ["crudini", "gron", "hyperfine", "jo", "jq", "jshon", "valgrind", "yq", "g++", "rapidjson-dev"]
    lines = subprocess.check_output(
        ["dpkg-query", "--show", "--showformat=- ${Package} ${Version}\n"] + packages).decode().splitlines()
    model = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text(encoding="utf-8"))
    lines.append(f"- {model.group(1) if model else platform.machine()}, {os.cpu_count()} processors, "
                 f"Linux {platform.release()}, load {os.getloadavg()[0]:.1f} at the end")
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=Path)
    parser.add_argument("result", type=Path)
    parser.add_argument("--only", choices=("start_up", "large_files", "growth"))
    arguments = parser.parse_args()
    folder = Path(tempfile.mkdtemp(prefix="kovalt-bench-"))
    try:
        make(folder)
        bench = Bench(arguments.build.resolve(), folder)
        print("| work | measure | value | |\n|---|---|---|---|")
        for part in (start_up, large_files, growth):
            if arguments.only in (None, part.__name__):
                part(bench)
    finally:
        shutil.rmtree(folder)
    table = "\n".join(["| work | measure | value | |", "|---|---|---|---|"] + bench.rows)
    origin = f"Made by `scripts/bench`, with its files in {tempfile.gettempdir()}."
    arguments.result.write_text(f"# Benchmark\n\n{origin}\n\n{versions()}\n\n{table}\n", encoding="utf-8")
    print(f"\nBounds missed: {len(bench.missed)}")
    for missed in bench.missed:
        print(f"- {missed}")


if __name__ == "__main__":
    main()
