"""Writes figures from the results of a run into the front page, between two comments.

    python3 bench/front_page.py bench/results/VERSION.json README.md [--check]

With --check, changes nothing, and fails if the page shows other figures.
"""

import json
import sys
import textwrap
from pathlib import Path

import large_files
import many_files
import start_up
from report import figure, memory_text, table, time_text

BEGIN = "<!-- The figures come from bench/front_page.py. -->\n"
END = "<!-- End of the figures. -->\n"
#: The rows: the group and the work, the title on the front page, and whether memory is shown.
ROWS = (
    (start_up.GROUP, start_up.READ_WORK, "Read one key of a file of 20 lines", False),
    (start_up.GROUP, "ten edits and five reads", "Ten edits and five reads (jq: 15 calls)", False),
    (many_files.GROUP, many_files.WORK, "Edit 1,000 files, four at a time", False),
    (large_files.READ, large_files.title("records", 50), "Read the last key of 50 MB", True),
    (large_files.EDIT, large_files.title("records", 50), "Edit one value of 50 MB", True),
)


def cell(row, with_memory):
    """The time of a program, how many times that of Kovalt it is, and perhaps the memory."""
    if row is None:
        return "-"
    time, memory = time_text(row["seconds"]), memory_text(row["memory"])
    if "times" not in row:
        return f"**{time}**" + (f", {memory}" if with_memory else "")
    text = f"{time} ({figure(row['times'])} x{', **ahead**' if row['ahead'] else ''})"
    if with_memory:
        text += f", {memory}" + (" (**ahead**)" if row["ahead_in_memory"] else "")
    return text


def find(rows, program):
    """The row of a program. A remark may follow the name after a comma."""
    return next((row for row in rows if row["program"].split(",")[0] == program), None)


def figures(data):
    comparisons = {(one["group"], one["work"]): one["rows"] for one in data["comparisons"]}
    programs = ["Kovalt"] + [peer for peer in data["peers"] if peer.split()[0] in ("jj", "jq")]
    rows = []
    for group, work, title, with_memory in ROWS:
        measured = [find(comparisons[group, work], program) for program in programs]
        rows.append([title, *(cell(row, with_memory) for row in measured)])
    machine = data["machine"]

    def milliseconds(program):
        return time_text(find(comparisons[start_up.GROUP, start_up.MAKE_WORK], program)["seconds"])

    origin = (f"Kovalt {data['version']}, commit {data['commit']}, {data['date']}; {machine['processor']}, "
              f"{machine['processors']} processors. Times are medians, memory is the peak. \"x\" is the median of the "
              "ratios of each round, so it may differ from the quotient of the times shown. Making a small document "
              f"takes {milliseconds('Kovalt')}; a program that does nothing takes "
              f"{milliseconds('a program that returns 0')}.")
    return table(["", *programs], rows) + "\n\n" + textwrap.fill(origin, 120) + "\n"


def main():
    results, page = Path(sys.argv[1]), Path(sys.argv[2])
    text = page.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    after = rest.split(END)[1]
    written = before + BEGIN + figures(json.loads(results.read_text(encoding="utf-8"))) + END + after
    if "--check" not in sys.argv:
        page.write_text(written, encoding="utf-8")
    elif written != text:
        raise SystemExit(f"{page} does not show the figures of {results}")


if __name__ == "__main__":
    main()
