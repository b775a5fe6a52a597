"""Writes the charts and the page of a run.

    python3 bench/report.py bench/results/VERSION.json

writes them beside that file.
"""

import json
import sys
from pathlib import Path

import charts

TERMS = """\
- **Times Kovalt's**: the time or the memory of a program divided by that of Kovalt for the same work. Above 1, Kovalt
  needs less. A competitor that needs less than Kovalt is marked **ahead**.
- **Bare parse**: a minimal program that parses the file with RapidJSON, the library that Kovalt uses, and exits. **Bare
  parse and write** also saves the document, indented. **Bare parse and print** prints it through RapidJSON's string
  buffer. These, `cat`, and a program that only returns 0 are references, not competitors.
- **Memory**: the peak resident memory of the process. **MB**: a million bytes.
- **Exponent**: how a cost grows with the size of the input; 1 is linear, 2 is quadratic. Instructions are compared
  between the first and second size, processor time between the second and third.
- **Instructions**: executed in user mode, counted by callgrind in an environment with only PATH. The counts are
  repeatable.
- **Times** are medians of several rounds, in which the programs take turns. A ratio is the median of the ratios of the
  rounds. Before another tool is timed, its result is compared with that of Kovalt, except those of gron and yq on
  files of 5 MB.
- **Held** and **missed**: whether Kovalt stays within a limit that it has to meet. In the tables of programs, a limit
  in MB applies to the memory of Kovalt, and any other limit to the ratio of the times."""


def time_text(seconds):
    return f"{seconds * 1000:,.3g} ms" if seconds < 0.9995 else f"{seconds:,.2f} s"


def memory_text(memory):
    return f"{memory / 1e6:,.1f} MB"


def figure(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.2f}" if value < 10 else f"{value:.1f}"


def limit_text(bound):
    """The limit of a bound, and whether it was held."""
    if "at_least" in bound:
        limit = f"at least {bound['at_least']:.2f}"
    elif "memory" in bound["what"]:
        limit = f"at most {memory_text(bound['at_most'])}"
    else:
        limit = f"at most {bound['at_most']:,.15g}"
    return f"{limit}: {'held' if bound['held'] else '**missed**'}"


def value_text(bound):
    if "memory" in bound["what"]:
        return memory_text(bound["value"])
    return f"{bound['value']:,.0f}" if bound["value"] >= 1000 else f"{bound['value']:.2f}"


def bound_text(bound):
    if bound["what"].startswith("time of "):
        program = bound["what"].removeprefix("time of ").removesuffix(", times Kovalt's")
        measured = f"{program} took {value_text(bound)} times Kovalt's time; the limit is "
    else:
        measured = f"{bound['what']}: {value_text(bound)}, "
    return f"{bound['group']}, {bound['work']}, {measured}{limit_text(bound)}"


def ahead_text(program, times, what):
    return f"{program} needs {(1 - times) * 100:.2g} % less {what} than Kovalt"


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
    return table(["Work", "Sizes", "Kovalt's times", "Exponent in instructions: first and second size",
                  "Exponent in processor time: second and third size"], rows)


def summary(data):
    bounds = data["bounds"]
    missed = [bound for bound in bounds if not bound["held"]]
    lines = [f"Kovalt has to meet {len(bounds)} limits and misses {f'{len(missed)}:' if missed else 'none.'}"]
    lines += ["", *[f"- {bound_text(bound)}" for bound in missed]] if missed else []
    ahead = [f"- {comparison['group']}, {comparison['work']}: {ahead_text(row['program'], row[times], what)}"
             for comparison in data["comparisons"] for row in comparison["rows"]
             for mark, times, what in (("ahead", "times", "time"), ("ahead_in_memory", "memory_times", "memory"))
             if row.get(mark)]
    lines += ["", "Programs ahead of Kovalt:", "", *(ahead or ["- none"])]
    return "\n".join(lines)


def origin(data):
    machine = data["machine"]
    rows = [
        ["Commit", f"{data['commit']}, version {data['version']}"],
        ["Date", f"{data['date']}, {data['minutes']} minutes"],
        ["Machine", f"{machine['processor']}, {machine['processors']} processors, {machine['memory'] / 1e9:.0f} GB"],
        ["System", f"{machine['system']}, files in {machine['files_in']}, load {machine['load_at_start']} before "
                   f"and {machine['load_at_end']} after the run"],
        ["Compared with", ", ".join(data["peers"]) or "-"],
        ["Debian packages", ", ".join(f"{name} {version}" for name, version in data["packages"].items())],
    ]
    return table(["Measured", ""], rows)


def markdown(data, file, pictures):
    """The page; `file` is the name of the results, and `pictures` has the titles of the charts by file name."""
    title = f"# Speed and memory of {data['tool']} {data['version']}"
    parts = [title]
    if data["quick"]:
        parts.append("**This was a quick run with tiny files and few rounds. It only shows that the benchmark works.** "
                     "The large files have a thousandth of the sizes in their titles.")
    parts += [f"`scripts/bench` wrote this page. The same figures as data: [{file}]({file}).",
              origin(data), "## In short", summary(data), "## Terms", TERMS]
    parts += [f"![{text}]({picture})" for picture, text in pictures.items()]
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
            parts.append(table(["Work", "What", "Measured", "Limit"], rows))
    return "\n\n".join(parts) + "\n"


def write(data, results):
    """Writes the charts and the page beside the file of results."""
    pictures = charts.draw(data, results)
    results.with_suffix(".md").write_text(markdown(data, results.name, pictures), encoding="utf-8")


if __name__ == "__main__":
    path = Path(sys.argv[1])
    write(json.loads(path.read_text(encoding="utf-8")), path)
