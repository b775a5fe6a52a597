"""Draws the charts from the results of a run, as SVG that can be read on light and dark pages.

    python3 bench/charts.py bench/results/VERSION.json

leaves them beside that file.
"""

import json
import math
import re
import subprocess
import sys
from pathlib import Path

import large_files
import options
import start_up

#: Each is light enough for a dark page and dark enough for a light one.
INK = "#7d8590"
TOOL = "#e8590c"
OTHERS = ("#3b82f6", "#12a594", "#a855f7", "#ca8a04", "#db2777", "#6b8e23")
#: How the names begin of what is drawn of the comparisons of large files.
DRAWN = ("Kovalt", "bare parse", "jj", "jq")

SETTINGS = """
set terminal svg size {width},{height} font "sans-serif,13" linewidth 1
set border 3 linecolor rgb "{ink}"
set tics textcolor rgb "{ink}" nomirror
set xlabel textcolor rgb "{ink}"
set ylabel textcolor rgb "{ink}"
set key textcolor rgb "{ink}"
set title "{title}" textcolor rgb "{ink}"
set grid {grid} linecolor rgb "{ink}" linewidth 0.3
"""


def settings(title, grid, width=640, height=340):
    return SETTINGS.format(title=title, grid=grid, width=width, height=height, ink=INK)


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def comparisons(data, group):
    return [comparison for comparison in data["comparisons"] if comparison["group"] == group]


def number(value):
    """Short, with about two digits."""
    return f"{value:.2g}" if value < 10 else f"{value:,.0f}"


def power_of_ten_below(value):
    return 10 ** math.floor(math.log10(value))


def start_up_bars(data):
    """Bars of milliseconds, the fastest at the top; nothing where it was not measured."""
    found = [comparison for comparison in comparisons(data, start_up.GROUP) if comparison["work"] == start_up.READ_WORK]
    if not found:
        return None
    rows = sorted(found[0]["rows"], key=lambda row: -row["seconds"])
    lines = []
    for position, row in enumerate(rows):
        colour = TOOL if row["program"] == "Kovalt" else OTHERS[0]
        milliseconds = row["seconds"] * 1000
        lines.append(f"{position} {milliseconds} {int(colour[1:], 16)} {quoted(number(milliseconds) + ' ms')}")
    names = ", ".join(f"{quoted(row['program'])} {position}" for position, row in enumerate(rows))
    left = power_of_ten_below(rows[-1]["seconds"] * 1000)
    return (settings("Start-up: " + start_up.READ_WORK, "xtics", height=90 + 26 * len(rows)) + f"""
$bars << END
{chr(10).join(lines)}
END
set logscale x
set xrange [{left}:{rows[0]["seconds"] * 3000}]
set format x "%g"
set yrange [-0.6:{len(rows) - 0.4}]
set ytics ({names}) scale 0
set xlabel "milliseconds (log scale)"
set style fill solid noborder
unset key
plot $bars using 2:1:({left}):2:($1-0.36):($1+0.36):3 with boxxyerror linecolor rgb variable, \\
     $bars using 2:1:4 with labels left offset 0.6,0 textcolor rgb "{INK}"
""")


def lines_of(series):
    """Data blocks and the plot command of lines with points; `series` has a name, a colour and points each."""
    blocks, plots = [], []
    for position, (name, colour, points) in enumerate(series):
        text = "\n".join(f"{x} {y}" for x, y in points)
        blocks.append(f"$line{position} << END\n{text}\nEND\n")
        plots.append(f"$line{position} using 1:2 with linespoints linecolor rgb \"{colour}\" linewidth "
                     f"{3 if colour == TOOL else 2} pointtype 7 pointsize 0.6 title {quoted(name)}")
    return "".join(blocks), "plot " + ", \\\n     ".join(plots) + "\n"


def reading_lines(data, figure, title, unit, scale):
    """The time or the memory of reading one key of files of compact records, over their sizes."""
    points = {}
    for comparison in comparisons(data, large_files.READ):
        if large_files.KINDS["records"] in comparison["work"]:
            for row in comparison["rows"]:
                if row["program"].startswith(DRAWN):
                    points.setdefault(row["program"], []).append((comparison["file_bytes"] / 1e6, row[figure] / scale))
    # Those that were measured at the first size only have no line.
    points = {name: line for name, line in points.items() if len(line) > 1}
    if not points:
        return None
    # In the order of the ends of the lines, from above.
    names = sorted(points, key=lambda name: -points[name][-1][1])
    # By name, so that a program has the same colour in each chart.
    colours = {"Kovalt": TOOL} | dict(zip(sorted(set(names) - {"Kovalt"}), OTHERS))
    series = [(name, colours[name], points[name]) for name in names]
    blocks, plot = lines_of(series)
    sizes = ", ".join(f'"{number(x)}" {x}' for x, _ in points["Kovalt"])
    return settings(title, "ytics") + blocks + f"""
set logscale xy
set xtics ({sizes})
set format y "%g"
set xlabel "megabytes of the file"
set ylabel "{unit} (log scale)"
set offsets graph 0.04, graph 0.04, 0, 0
set key outside right center reverse Left
{plot}"""


def option_lines(data):
    """Seconds of one call over the number of its options."""
    rows = [row for row in data["growth"] if row["group"] == options.GROUP and row["work"] in options.DRAWN]
    if not rows:
        return None
    rows.sort(key=lambda row: -[seconds for seconds in row["seconds"] if seconds is not None][-1])
    colours = (TOOL, *OTHERS)
    series = [(row["work"], colours[options.DRAWN.index(row["work"])],
               [(size, seconds) for size, seconds in zip(row["sizes"], row["seconds"]) if seconds is not None])
              for row in rows]
    blocks, plot = lines_of(series)
    return settings("Many options in one call, on one object or array of as many", "ytics") + blocks + f"""
set xrange [0:{max(rows[0]["sizes"]) * 1.05}]
set yrange [0:*]
set format x "%'.0f"
set xtics {max(rows[0]["sizes"]) // 4}
set xlabel "options in the call"
set ylabel "seconds"
set key outside right center reverse Left
{plot}"""


def draw(data, folder):
    """Writes the charts into the folder; gives their titles by file name."""
    version = data["version"]
    charts = {
        "start-up": ("Start-up", start_up_bars(data)),
        "reading-time": ("Time of reading one key",
                         reading_lines(data, "seconds", "Reading one key at the end of a file", "seconds", 1)),
        "reading-memory": ("Memory of reading one key",
                           reading_lines(data, "memory", "Peak memory of reading one key", "megabytes", 1e6)),
        "options": ("Options in one call", option_lines(data)),
    }
    drawn = {}
    for name, (title, script) in charts.items():
        if script is not None:
            picture = subprocess.run(["gnuplot"], input=script.encode(), stdout=subprocess.PIPE, check=True).stdout
            # The title of the file is shown where the pointer rests on it.
            picture = re.sub("<title>Gnuplot</title>\n<desc>.*</desc>", f"<title>{title}</title>", picture.decode())
            file = f"{version}-{name}.svg"
            (folder / file).write_text(picture, encoding="utf-8")
            drawn[file] = title
    return drawn


if __name__ == "__main__":
    results = Path(sys.argv[1])
    draw(json.loads(results.read_text(encoding="utf-8")), results.parent)
