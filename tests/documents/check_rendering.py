#!/usr/bin/env python3
"""Renders a manual page at 80 columns, in ASCII and in UTF-8, and fails if it is hard to read.

Faults are lines that are too long, lists that are not aligned, paths that seem to end in two dots, characters that
ASCII lacks, and headings and examples that differ from the source.
"""

import argparse
import os
import re
import subprocess
import sys
from pathlib import Path

from run_examples import HelpFormatter, read_blocks

COLUMNS = 80
INDENT = " " * 11


def render(page, locale):
    environment = {"MANWIDTH": str(COLUMNS), "LC_ALL": locale, "PATH": os.environ["PATH"]}
    command = ["man", "--local-file", str(page)]
    return subprocess.run(command, env=environment, stdout=subprocess.PIPE, check=True).stdout.decode("utf-8")


def example_lines(source):
    """Yields the lines of the examples as they must be rendered."""
    for block in read_blocks(source):
        for command in block.commands:
            yield "$ " + command.text.replace("\n", "\n> ")
            yield from command.expected.splitlines()


def headings(source):
    """Yields the headings of sections and tasks, without the title of a Markdown document."""
    first_level = 2 if source.suffix == ".md" else 1
    for level, heading in re.findall(r"^(#+) (.*)$", source.read_text(encoding="utf-8"), re.MULTILINE):
        if len(level) >= first_level:
            yield heading.upper() if len(level) == first_level else "   " + heading


def faults(text, titles, examples, locale):
    lines = text.splitlines()
    shown = set(lines)
    for number, (line, following) in enumerate(zip(lines, lines[1:] + [""]), 1):
        if len(line) > COLUMNS:
            yield f"line {number} has {len(line)} columns: {line}"
        if re.search(r"\w\.\.(?!\.)", line):
            yield f"line {number} has a path with two dots: {line}"
        if locale == "C" and not line.isascii():
            yield f"line {number} is not ASCII: {line}"
        item = re.match(r" +(?:[0-9]+\.|o) +(?=\S)", line)
        if item and following.strip() and not re.match(r" +(?:[0-9]+\.|o) ", following):
            if len(following) - len(following.lstrip()) != item.end():
                yield f"line {number} begins an item that continues in another column: {line}"
    for heading in titles:
        if heading not in shown:
            yield f"heading differs from the source: {heading}"
    for example in examples:
        if any(line and INDENT + line not in shown for line in example.splitlines()):
            yield f"example differs from the source: {example}"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=HelpFormatter)
    parser.add_argument("--source", required=True, type=Path, help="the file that the page is made from")
    parser.add_argument("page", type=Path)
    arguments = parser.parse_args()

    examples = list(example_lines(arguments.source))
    rendered = {locale: render(arguments.page, locale) for locale in ("C", "C.UTF-8")}
    titles = list(headings(arguments.source))
    found = []
    for locale, text in rendered.items():
        found += [f"{locale}: {fault}" for fault in faults(text, titles, examples, locale)]
    # If ASCII lacks a character, man replaces it, and the renderings differ.
    bullets = rendered["C.UTF-8"].replace("\N{BULLET}", "o")
    for ascii_line, line in zip(rendered["C"].splitlines(), bullets.splitlines()):
        if ascii_line != line:
            found.append(f"ASCII: {ascii_line}\nUTF-8: {line}")
    if not examples:
        found.append("no lines of examples were found")
    print("\n".join(found) or f"{len(examples)} lines of examples, no fault")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
