"""Usage: python3 docs/reliability_figures.py [--check | STEP COMMAND COMMIT <LOG]

Writes the figures of docs/reliability.json to the page docs/reliability.md, between the comments that mark their places.
With --check, fails if the page shows anything else. With a step, first replaces the figures of that step by those of the
log: the lines that consist of FIGURE, a name and a value, separated by tabs.
"""

import datetime
import json
import re
import sys
from pathlib import Path

DATA = Path(__file__).with_name("reliability.json")
PAGE = Path(__file__).with_name("reliability.md")
#: A place for figures. Its first comment lists steps, or says "origin" for the commits of all figures.
PLACE = re.compile(r"(<!-- Figures: ([\w -]+) -->\n).*?(<!-- End of the figures -->)", re.DOTALL)


def figures_of(log):
    fields = (line.rstrip("\n").split("\t") for line in log if line.startswith("FIGURE\t"))
    return {name: value for _, name, value in fields}


def origin(data):
    """Returns the commit of all figures, or the steps of each commit."""
    steps = {}
    for name, step in data.items():
        steps.setdefault(f"commit {step['commit']}, {step['date']}", []).append(name)
    if len(steps) == 1:
        return f"All figures come from {next(iter(steps))}.\n"
    return "The figures come from different commits: " + "; ".join(
        f"{', '.join(names)} from {commit}" for commit, names in steps.items()) + ".\n"


def table(data, names):
    lines = ["| Figure | | Command |", "|---|---|---|"]
    for name in names:
        for figure, value in data.get(name, {"figures": {}})["figures"].items():
            readable = re.sub(r"\d{4,}", lambda digits: f"{int(digits[0]):,}", value)
            lines.append(f"| {figure} | {readable} | {data[name]['command']} |")
    return "\n".join(lines) + "\n"


def page_with(data, text):
    """Returns the text of the page with the figures of the data. Exits if a step has no place."""
    shown = {name for _, names, _ in PLACE.findall(text) for name in names.split()}
    if not data.keys() <= shown:
        raise SystemExit(f"{PAGE} has no place for {', '.join(data.keys() - shown)}")

    def fill(place):
        names = place[2].split()
        return place[1] + "\n" + (origin(data) if names == ["origin"] else table(data, names)) + "\n" + place[3]

    return PLACE.sub(fill, text)


def main():
    data = json.loads(DATA.read_text(encoding="utf-8"))
    if len(sys.argv) == 4:
        step, command, commit = sys.argv[1:]
        data[step] = {"command": command, "commit": commit, "date": datetime.date.today().isoformat(),
                      "figures": figures_of(sys.stdin)}
        data = dict(sorted(data.items()))
    text = PAGE.read_text(encoding="utf-8")
    written = page_with(data, text)
    if sys.argv[1:] == ["--check"]:
        if written != text:
            raise SystemExit(f"{PAGE} does not show the figures of {DATA}")
        return
    DATA.write_text(json.dumps(data, indent=1, ensure_ascii=False) + "\n", encoding="utf-8")
    PAGE.write_text(written, encoding="utf-8")


if __name__ == "__main__":
    main()
