"""Writes the figures of the front page from the results of a run, between the two comments that mark their place.

    python3 bench/front_page.py bench/results/VERSION.json README.md [--check]

With --check it changes nothing, and fails where the page shows anything else.
"""

import json
import sys
from pathlib import Path

import large_files
import many_files
import start_up
from report import figure, memory_text, table, time_text

BEGIN = "<!-- The figures come from bench/front_page.py. -->\n"
END = "<!-- End of the figures. -->\n"
#: What is shown: the group and the work, what it is called here, and whether memory matters.
SHOWN = (
    (start_up.GROUP, start_up.READ_WORK, "Read one key of 20 lines", False),
    (start_up.GROUP, "edit a 20-line file", "Edit a file of 20 lines", False),
    (start_up.GROUP, "ten edits and five reads", "Ten edits and five reads", False),
    (many_files.GROUP, many_files.WORK, "Edit 1,000 files, four at a time", False),
    (large_files.READ, large_files.title("records", 50), "Read the last key of 50 MB", True),
    (large_files.READ, large_files.title("records", 200), "Read the last key of 200 MB", True),
    (large_files.EDIT, large_files.title("records", 50), "Edit a file of 50 MB", False),
)


def cell(row):
    """The time of a program, and how it compares."""
    if row is None:
        return "-"
    if "times" not in row:
        return f"**{time_text(row['seconds'])}**"
    ahead = ", **ahead**" if row["ahead"] else ""
    return f"{time_text(row['seconds'])}, {figure(row['times'])} x{ahead}"


def find(rows, program):
    """The row of a program, which may be called with a remark after a comma."""
    return next((row for row in rows if row["program"].split(",")[0] == program), None)


def figures(data):
    comparisons = {(one["group"], one["work"]): one["rows"] for one in data["comparisons"]}
    programs = ["Kovalt"] + [peer for peer in data["peers"] if peer.split()[0] in ("jj", "jq")]
    rows = []
    for group, work, title, with_memory in SHOWN:
        measured = [find(comparisons[group, work], program) for program in programs]
        rows.append([title, *(cell(row) for row in measured)])
        if with_memory:
            rows.append(["... and its memory", *(memory_text(row["memory"]) if row else "-" for row in measured)])
    machine = data["machine"]
    origin = (f"Version {data['version']}, commit {data['commit']}, {data['date']}, {machine['processor']}, "
              f"{machine['processors']} processors; times are medians, \"x\" says how many times Kovalt's.")
    return table(["", *programs], rows) + "\n\n" + origin + "\n"


def main():
    results, page = Path(sys.argv[1]), Path(sys.argv[2])
    text = page.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    after = rest.split(END)[1]
    written = before + BEGIN + "\n" + figures(json.loads(results.read_text(encoding="utf-8"))) + "\n" + END + after
    if "--check" not in sys.argv:
        page.write_text(written, encoding="utf-8")
    elif written != text:
        raise SystemExit(f"{page} does not show the figures of {results}")


if __name__ == "__main__":
    main()
