"""Calls with thousands of options on the same objects."""

import json
import random
from dataclasses import dataclass
from typing import Callable

from make_data import SEED, make_options

GROUP = "Options in one call"
SINGLE = "One selection"
SIZES = (2_000, 20_000, 40_000)
QUICK_SIZES = (100, 400, 800)
#: The titles of the works in the chart.
DRAWN = ("additions at the root", "reads at the root", "removals at the root", "selections by a number",
         "selections by a text")
#: The number of elements that one selection searches.
ELEMENTS = 100_000


@dataclass
class Work:
    title: str
    #: Returns the arguments for a number of options.
    arguments: Callable
    #: Returns the output of the call as a JSON value.
    expected: Callable
    #: Whether the call displays a large document. In measured calls, an additional read avoids that cost.
    displays: bool = False


def shuffled(size):
    numbers = list(range(size))
    random.Random(SEED).shuffle(numbers)
    return numbers


def each(line, numbers):
    return [word for number in numbers for word in line.replace("N", str(number)).split()]


WORK = (
    Work("additions at the root", lambda n: each("-as kN v", range(n)),
         lambda n: {f"k{i}": "v" for i in range(n)}, True),
    Work("additions below", lambda n: each("-as o.kN v", range(n)),
         lambda n: {"o": {f"k{i}": "v" for i in range(n)}}, True),
    Work("additions to members that are there", lambda n: ["-af", f"root{n}.json"] + each("-as kN v", shuffled(n)),
         lambda n: {f"k{i}": "v" for i in range(n)}, True),
    Work("chains of four that meet", lambda n: each("-as a.b.c.kN v", range(n)),
         lambda n: {"a": {"b": {"c": {f"k{i}": "v" for i in range(n)}}}}, True),
    Work("chains that meet in half as many objects",
         lambda n: each("-as kN.x v", range(n // 2)) + each("-as kN.y v", range(n // 2)),
         lambda n: {f"k{i}": {"x": "v", "y": "v"} for i in range(n // 2)}, True),
    Work("reads at the root", lambda n: ["-f", f"root{n}.json"] + each("-r kN", shuffled(n)),
         lambda n: {f"k{i}": str(i) for i in range(n)}),
    Work("reads below", lambda n: ["-f", f"deep{n}.json"] + each("-r o.kN", shuffled(n)),
         lambda n: {f"o.k{i}": str(i) for i in range(n)}),
    Work("removals at the root", lambda n: ["-af", f"root{n}.json"] + each("-rm kN", shuffled(n)), lambda n: {}),
    Work("removals below", lambda n: ["-af", f"deep{n}.json"] + each("-rm o.kN", shuffled(n)), lambda n: {"o": {}}),
    Work("selections by a number", lambda n: ["-f", f"select_number{n}.json"] + each("-r l.i=N.v", shuffled(n)),
         lambda n: {f"l.i={i}.v": str(i) for i in range(n)}),
    Work("selections by a text", lambda n: ["-f", f"select_text{n}.json"] + each("-r l.i=N.v", shuffled(n)),
         lambda n: {f"l.i={i}.v": str(i) for i in range(n)}),
)


def measure(m, record, _):
    sizes = QUICK_SIZES if m.quick else SIZES
    for size in sizes:
        make_options(m.folder, size)
    for work in WORK:
        if json.loads(m.shell([m.tool] + work.arguments(sizes[0]))) != work.expected(sizes[0]):
            raise SystemExit(f"{work.title}: unexpected output")
        quiet = ["-r", "k0"] if work.displays else []
        record.grow(GROUP, work.title, sizes,
                    lambda size, work=work, quiet=quiet: [m.tool] + work.arguments(size) + quiet)
    one_selection(m, record)


def one_selection(m, record):
    """Compares a selection by a number with one by a string: as a whole call, and without the cost of loading."""
    size = ELEMENTS // (100 if m.quick else 1)
    make_options(m.folder, size)
    whole, alone = {}, {}
    for kind in ("number", "text"):
        name = f"select_{kind}{size}.json"
        selection = ["-r", f"l.i={size - 1}.v"]
        if m.shell([m.tool, "-f", name] + selection) != f"{size - 1}\n".encode():
            raise SystemExit("a selection gives a different answer")
        whole[kind] = m.instructions([m.tool, "-f", name] + selection)
        # The removal of a missing member loads the whole document, whatever is read.
        load = [m.tool, "-f", name, "-rm", "none"]
        alone[kind] = m.instructions(load + selection) - m.instructions(load + ["-r", "none"])
    work = f"the last of {size:,} objects"
    what = "instructions of one by a number, times one by a text"
    record.judge(SINGLE, work, f"{what}, whole read-only call", whole["number"] / whole["text"], at_most=1.3)
    record.judge(SINGLE, work, f"{what}, the selection alone", alone["number"] / alone["text"], at_most=1.3)
