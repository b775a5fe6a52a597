"""Runs the benchmark: checks that the answers are equal, measures in turns, and writes the results as JSON, as Markdown
and as charts.

A time is the median over all rounds. A ratio is the median of the ratios within each round, so that changes in the
speed of the machine do not matter. The growth is measured in instructions and in processor time, which other programs
disturb less.
Instructions are counted by callgrind in user mode and are repeatable.
"""

import argparse
import datetime
import json
import os
import platform
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import growth
import large_files
import many_files
import options
import report
import start_up
from measuring import Measuring, Peers
from record import Record

PARTS = {"start_up": start_up, "many_files": many_files, "large_files": large_files, "options": options,
         "growth": growth}
PACKAGES = ("crudini", "g++", "gron", "jo", "jq", "jshon", "rapidjson-dev", "valgrind", "yq")


def first_match(pattern, path, otherwise):
    try:
        return re.search(pattern, Path(path).read_text(encoding="utf-8"), re.MULTILINE).group(1)
    except (OSError, AttributeError):
        return otherwise


def machine():
    memory = int(first_match(r"^MemTotal:\s*(\d+) kB", "/proc/meminfo", "0")) * 1024
    return {"processor": first_match(r"^model name\s*: (.*)", "/proc/cpuinfo", platform.machine()),
            "processors": os.cpu_count(), "memory": memory, "system": f"{platform.system()} {platform.release()}",
            "files_in": tempfile.gettempdir()}


def installed_versions():
    lines = subprocess.run(["dpkg-query", "--show", "--showformat=${Package} ${Version}\n", *PACKAGES],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout.decode().splitlines()
    return dict(line.split() for line in lines if len(line.split()) == 2)


def commit(source):
    """Returns the commit that is measured, with a remark if files differ from it."""
    try:
        known = subprocess.check_output(["git", "-C", source, "rev-parse", "--short=10", "HEAD"],
                                        stderr=subprocess.DEVNULL).decode().strip()
        changed = subprocess.check_output(["git", "-C", source, "status", "--porcelain", "src", "bench", "completion"])
        return known + (" with changes" if changed else "")
    except (OSError, subprocess.CalledProcessError):
        return "unknown"


def main():
    parser = argparse.ArgumentParser(prog="scripts/bench")
    parser.add_argument("build", type=Path)
    parser.add_argument("results", type=Path)
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--only", choices=PARTS, action="append")
    parser.add_argument("--jq", action="append", default=[])
    parser.add_argument("--jj", action="append", default=[])
    arguments = parser.parse_args()
    build = arguments.build.resolve()
    # Only a whole run is recorded for the version.
    results = build / "results" if arguments.quick or arguments.only else arguments.results
    results.mkdir(parents=True, exist_ok=True)

    # Removes the files also after SIGTERM.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("terminated"))
    start, load = time.monotonic(), os.getloadavg()[0]
    peers = Peers(arguments.jq, arguments.jj)
    folder = Path(tempfile.mkdtemp(prefix="kovalt-bench-"))
    try:
        measuring = Measuring(build, folder, arguments.quick)
        record = Record(measuring)
        for name, part in PARTS.items():
            if arguments.only is None or name in arguments.only:
                part.measure(measuring, record, peers)
    finally:
        shutil.rmtree(folder)

    version = first_match(r"^CMAKE_PROJECT_VERSION:\w+=(.*)", build / "CMakeCache.txt", "unknown")
    source = first_match(r"^CMAKE_HOME_DIRECTORY:\w+=(.*)", build / "CMakeCache.txt", ".")
    data = {
        "tool": "Kovalt", "version": version, "commit": commit(source), "quick": arguments.quick,
        "date": datetime.date.today().isoformat(), "minutes": round((time.monotonic() - start) / 60, 1),
        "machine": machine() | {"load_at_start": round(load, 1), "load_at_end": round(os.getloadavg()[0], 1)},
        "packages": installed_versions(), "peers": [*peers.jq, *peers.jj],
    } | record.as_data()
    path = results / f"{version}.json"
    path.write_text(json.dumps(data, indent=1) + "\n", encoding="utf-8")
    report.write(data, path)
    missed = [bound for bound in data["bounds"] if not bound["held"]]
    print(f"\n{len(data['bounds'])} limits, missed: {len(missed)}")
    for bound in missed:
        print(f"- {report.bound_text(bound)}")
    print(f"{path.with_suffix('.md')}, in {data['minutes']} minutes")


if __name__ == "__main__":
    main()
