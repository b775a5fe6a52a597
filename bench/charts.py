"""Draws the charts of a run as SVG, dark on white, or light on black for readers who prefer that.

    python3 bench/charts.py bench/results/VERSION.json

writes them beside that file.
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

PAGE = "#ffffff"
INK = "#57606a"
TOOL = "#bc4c00"
OTHERS = ("#0969da", "#0f766e", "#8250df", "#8a5d00", "#bf3989", "#4d7c0f")
#: What each colour becomes on a dark page. A test checks that all contrasts with the page are at least 4.5 to 1.
ON_DARK = {PAGE: "#0d1117", INK: "#9198a1", TOOL: "#ff8c42"} | dict(
    zip(OTHERS, ("#58a6ff", "#2dd4bf", "#bc8cff", "#e3b341", "#f778ba", "#a3c557")))
#: The programs in the charts of large files, by the beginning of their names.
DRAWN = ("Kovalt", "bare parse", "jj", "jq")

SETTINGS = """
set terminal svg size {width},{height} font "sans-serif,13" linewidth 1 background rgb "{page}"
set border 3 linecolor rgb "{ink}"
set tics textcolor rgb "{ink}" nomirror
set xlabel textcolor rgb "{ink}"
set ylabel textcolor rgb "{ink}"
set key textcolor rgb "{ink}"
set title "{title}" textcolor rgb "{ink}"
set grid {grid} linecolor rgb "{ink}" linewidth 0.3
"""


def settings(title, grid, width=640, height=340):
    return SETTINGS.format(title=title, grid=grid, width=width, height=height, ink=INK, page=PAGE)


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def comparisons(data, group):
    return [comparison for comparison in data["comparisons"] if comparison["group"] == group]


def number(value):
    """Short, with about two digits."""
    return f"{value:.2g}" if value < 10 else f"{value:,.0f}"


def power_of_ten_below(value):
    return 10 ** math.floor(math.log10(value))


def start_up_dots(data):
    """A dot for each program at its milliseconds, the fastest at the top. None if this was not measured."""
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
$dots << END
{chr(10).join(lines)}
END
set logscale x
set xrange [{left}:{rows[0]["seconds"] * 3000}]
set format x "%g"
set yrange [-0.6:{len(rows) - 0.4}]
set ytics ({names}) scale 0
set xlabel "milliseconds (log scale)"
unset key
plot $dots using 2:1:3 with points pointtype 7 pointsize 0.9 linecolor rgb variable, \\
     $dots using 2:1:4 with labels left offset 1,0 textcolor rgb "{INK}"
""")


def lines_of(series):
    """Returns data blocks and the command that plots them. Each series has a name, a colour and points."""
    blocks, plots = [], []
    for position, (name, colour, points) in enumerate(series):
        text = "\n".join(f"{x} {y}" for x, y in points)
        blocks.append(f"$line{position} << END\n{text}\nEND\n")
        plots.append(f"$line{position} using 1:2 with linespoints linecolor rgb \"{colour}\" linewidth "
                     f"{3 if colour == TOOL else 2} pointtype 7 pointsize 0.6 title {quoted(name)}")
    return "".join(blocks), "plot " + ", \\\n     ".join(plots) + "\n"


def reading_lines(data, figure, title, unit, scale):
    """The time or the memory of reading one key, over the sizes of files of compact records."""
    points = {}
    for comparison in comparisons(data, large_files.READ):
        if large_files.KINDS["records"] in comparison["work"]:
            for row in comparison["rows"]:
                if row["program"].startswith(DRAWN):
                    points.setdefault(row["program"], []).append((comparison["file_bytes"] / 1e6, row[figure] / scale))
    # A program that was measured at one size only has no line.
    points = {name: line for name, line in points.items() if len(line) > 1}
    if not points:
        return None
    # The key lists the lines in the order of their right ends.
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
    return settings("Many options in one call, on an object or array of that size", "ytics") + blocks + f"""
set xrange [0:{max(rows[0]["sizes"]) * 1.05}]
set yrange [0:*]
set format x "%'.0f"
set xtics {max(rows[0]["sizes"]) // 4}
set xlabel "options in the call"
set ylabel "seconds"
set key outside right center reverse Left
{plot}"""


def hexadecimal(match):
    return "#" + "".join(f"{int(part):02x}" for part in match.groups())


def with_dark_colours(picture):
    """Adds the colours for readers who prefer a dark page. Their selectors need one spelling of each colour."""
    picture = re.sub(r"rgb\( *(\d+), *(\d+), *(\d+)\)", hexadecimal, picture)
    rules = [f'[{attribute}="{light}"] {{ {attribute}: {dark} }}' for light, dark in ON_DARK.items()
             for attribute in ("fill", "stroke", "color")]
    style = "<style>\n@media (prefers-color-scheme: dark) {\n" + "\n".join(rules) + "\n}\n</style>\n"
    return picture.replace("</title>\n", "</title>\n" + style, 1)


def draw(data, results):
    """Writes the charts beside the file of results. Returns their titles by file name."""
    charts = {
        "start-up": ("Start-up", start_up_dots(data)),
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
            # Browsers show the title as a tooltip.
            picture = re.sub("<title>Gnuplot</title>\n<desc>.*</desc>", f"<title>{title}</title>", picture.decode())
            file = f"{results.stem}-{name}.svg"
            results.with_name(file).write_text(with_dark_colours(picture), encoding="utf-8")
            drawn[file] = title
    return drawn


if __name__ == "__main__":
    path = Path(sys.argv[1])
    draw(json.loads(path.read_text(encoding="utf-8")), path)
