"""Writes the results of a run as Markdown, for reading.

    python3 bench/report.py bench/results/VERSION.json

leaves it beside that file.
"""

import json
import sys
from pathlib import Path

TERMS = """\
- **Times Kovalt's**: what a program takes, divided by what Kovalt takes for the same. In every comparison more is
  better for Kovalt. A program that does the same with less is marked as **ahead**.
- **Bare parse**: the least program around RapidJSON, which Kovalt uses too, with RapidJSON's own stream and the same
  buffer: it parses the file into a document and ends. **Bare parse and write** saves the document too, indented. **The
  plain way** prints it by way of RapidJSON's own string buffer. They, `cat` and a program that returns 0 are measures,
  not peers.
- **Memory**: the peak of the process's resident memory. **MB**: a million bytes.
- **Exponent**: the power of the size with which a cost grows; 1 is in proportion, 2 is quadratic. In instructions it is
  taken between the first two sizes, in time of the processor between the last two.
- **Instructions**: of user code, counted by callgrind in an empty environment; they repeat exactly.
- Times are medians, taken in turns; a ratio is the median of the ratios of the rounds. All answers were compared before
  anything was timed, but for those of `cat` and, on files of 5 MB, of gron and yq.
- **Held** and **missed** say whether a bound was kept that the tool is held to."""


def time_text(seconds):
    return f"{seconds * 1000:,.3g} ms" if seconds < 0.9995 else f"{seconds:,.2f} s"


def memory_text(memory):
    return f"{memory / 1e6:,.1f} MB"


def figure(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.2f}" if value < 10 else f"{value:.1f}"


def limit_text(bound):
    """A bound on one line: the limit, and whether it was kept."""
    if "at_least" in bound:
        limit = f"at least {bound['at_least']:.2f}"
    elif "memory" in bound["what"]:
        limit = f"at most {memory_text(bound['at_most'])}"
    else:
        limit = f"at most {bound['at_most']:,.15g}"
    return f"{limit}: {'held' if bound['held'] else '**MISSED**'}"


def value_text(bound):
    if "memory" in bound["what"]:
        return memory_text(bound["value"])
    return f"{bound['value']:,.0f}" if bound["value"] >= 1000 else f"{bound['value']:.2f}"


def bound_text(bound):
    return f"{bound['group']}, {bound['work']}, {bound['what']}: {value_text(bound)}, {limit_text(bound)}"


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows])


def comparison_table(comparisons):
    rows = []
    for comparison in comparisons:
        size = f" ({comparison['file_bytes'] / 1e6:.3g} MB)" if "file_bytes" in comparison else ""
        for row in comparison["rows"]:
            first = row is comparison["rows"][0]
            notes = ["**ahead**"] if row.get("ahead") else []
            notes += ["**ahead** in memory"] if row.get("ahead_in_memory") else []
            notes += [limit_text(row["bound"])] if "bound" in row else []
            program = f"**{row['program']}**" if first else row["program"]
            rows.append([comparison["work"] + size if first else "", program, time_text(row["seconds"]),
                         "1" if first else figure(row["times"]), memory_text(row["memory"]),
                         "1" if first else figure(row["memory_times"]), ", ".join(notes)])
    return table(["Work", "Program", "Time", "times Kovalt's", "Memory", "times Kovalt's", ""], rows)


def growth_table(growth, bounds):
    rows = []
    for row in growth:
        judged = [bound for bound in bounds if (bound["group"], bound["work"]) == (row["group"], row["work"])]
        rows.append([row["work"], " / ".join(f"{size:,}" for size in row["sizes"]),
                     " / ".join("-" if seconds is None else time_text(seconds) for seconds in row["seconds"]),
                     *[value_text(bound) + ", " + limit_text(bound) for bound in judged],
                     *(["-"] if len(judged) == 1 else [])])
    return table(["Work", "Sizes", "Kovalt's times", "Exponent in instructions", "Exponent in time"], rows)


def summary(data):
    bounds = data["bounds"]
    missed = [bound for bound in bounds if not bound["held"]]
    lines = [f"Bounds that the tool is held to: {len(bounds)}, missed: {len(missed)}{':' if missed else '.'}"]
    lines += ["", *[f"- {bound_text(bound)}" for bound in missed]] if missed else []
    ahead = [f"- {row['program']}: {comparison['group'].lower()}, {comparison['work']}: {figure(row[times])} times "
             f"Kovalt's {what}" for comparison in data["comparisons"] for row in comparison["rows"]
             for mark, times, what in (("ahead", "times", "time"), ("ahead_in_memory", "memory_times", "memory"))
             if row.get(mark)]
    lines += ["", "Programs ahead of Kovalt:", "", *(ahead or ["- no program in any row"])]
    return "\n".join(lines)


def origin(data):
    machine = data["machine"]
    rows = [
        ["Commit", f"{data['commit']}, version {data['version']}"],
        ["Date", f"{data['date']}, a run of {data['minutes']} minutes"],
        ["Machine", f"{machine['processor']}, {machine['processors']} processors, {machine['memory'] / 1e9:.0f} GB"],
        ["System", f"{machine['system']}, files in {machine['files_in']}, load {machine['load_at_start']} at the start "
                   f"and {machine['load_at_end']} at the end"],
        ["Compared with", ", ".join(data["peers"]) or "-"],
        ["Packages of Debian", ", ".join(f"{name} {version}" for name, version in data["packages"].items())],
    ]
    return table(["Measured", ""], rows)


def markdown(data, charts):
    """The page; `charts` has the titles of the pictures by file name."""
    title = f"# Speed and memory of {data['tool']} {data['version']}"
    parts = [title]
    if data["quick"]:
        parts.append("**A quick run, of tiny files and few rounds: it shows that the benchmark works and no more.** "
                     "The files have a hundredth of the sizes that their titles say.")
    parts += [f"Made by `scripts/bench`. The same figures as data: [{data['version']}.json]({data['version']}.json).",
              origin(data), "## In short", summary(data), "## Terms", TERMS]
    parts += [f"![{text}]({file})" for file, text in charts.items()]
    growth_groups = {row["group"] for row in data["growth"]}
    compared_groups = {comparison["group"] for comparison in data["comparisons"]}
    measured_groups = [row["group"] for rows in ("comparisons", "growth", "bounds") for row in data[rows]]
    for group in dict.fromkeys(measured_groups):
        parts.append(f"## {group}")
        if group in compared_groups:
            parts.append(comparison_table([one for one in data["comparisons"] if one["group"] == group]))
        if group in growth_groups:
            parts.append(growth_table([row for row in data["growth"] if row["group"] == group], data["bounds"]))
        shown = {row["work"] for row in data["growth"] if row["group"] == group}
        single = [bound for bound in data["bounds"] if bound["group"] == group and bound["work"] not in shown
                  and "memory" not in bound["what"] and "time of" not in bound["what"]]
        if single:
            rows = [[bound["work"], bound["what"], value_text(bound), limit_text(bound)] for bound in single]
            parts.append(table(["Work", "What", "Measured", "Bound"], rows))
    return "\n\n".join(parts) + "\n"


if __name__ == "__main__":
    import charts

    results = Path(sys.argv[1])
    measured = json.loads(results.read_text(encoding="utf-8"))
    pictures = charts.draw(measured, results.parent)
    results.with_suffix(".md").write_text(markdown(measured, pictures), encoding="utf-8")
