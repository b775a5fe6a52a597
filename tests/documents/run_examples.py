#!/usr/bin/env python3
"""Runs every example of a document and compares what it shows with what the shell prints, byte for byte.

An example is a fenced block that begins with a "$ " line. Such a line is a command, "> " lines continue it, and all
other lines are its output on both streams. The blocks of a section share one shell, so that a block can use "$?" or a
variable of an earlier one, and one fresh folder with copies of the example files. Every section runs in bash and
then in dash, as an example of a POSIX shell. If a Markdown block is marked "console bash", its section runs in bash
only.

A Markdown block marked "console same" does the same as the block before it, with other tools. It runs in bash
only, in a fresh folder of its own. The last commands of both must print the same, or the same JSON.

"$prefix" is the folder in which the tool is installed.

sudo is replaced by a script that needs no password: like sudo it closes all files except the standard streams, and then
runs the command as the same user.
"""

import argparse
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
from itertools import groupby, zip_longest
from pathlib import Path

END_OF_OUTPUT = b"\x01\n"
EDIT_SCRIPT = Path(__file__).resolve().parent.parent.parent / "edit" / "kovalt-edit"
SUDO = f"""#!{sys.executable}
import os, sys
os.closerange(3, 256)
os.execvp(sys.argv[1], sys.argv[1:])
"""


class Command:
    def __init__(self, line_number, text):
        self.line_number = line_number
        self.text = text
        self.expected = ""
        self.printed = {}  # By shell; None if the shell exited before.


class Block:
    def __init__(self, section, mark):
        if mark.startswith("console ") and mark not in ("console same", "console bash"):
            sys.exit(f"unknown mark: {mark}")
        self.section = section
        self.same = mark == "console same"
        self.bash_only = mark == "console bash"
        self.commands = []


def read_blocks(path):
    """Returns the example blocks of a document in order."""
    blocks, block, fence, section = [], None, None, 0
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        opening = re.match(r"(\s*)```(.*)$", line)
        if fence is None:
            section += line.startswith("#")
            if opening:
                fence = opening[1]
                block = Block(section, opening[2])
        elif line == fence + "```":
            fence = None
            if block.commands:
                blocks.append(block)
        else:
            add_line(block, number, unescape(path, line.removeprefix(fence)))
    if fence is not None:
        sys.exit(f"{path}: the last block is not closed")
    return blocks


def unescape(path, line):
    return re.sub(r"\\(.)", r"\1", line) if path.suffix == ".scd" else line


def add_line(block, number, line):
    if line.startswith("$ "):
        block.commands.append(Command(number, line[2:]))
    elif block.commands:
        command = block.commands[-1]
        if line.startswith("> ") and not command.expected:
            command.text += "\n" + line[2:]
        else:
            command.expected += line + "\n"


def run_in_one_shell(shell, commands, program, examples, prefix):
    """Runs the commands in a fresh folder and stores the output of each."""
    with tempfile.TemporaryDirectory() as top:
        folder = Path(top, "work")
        shutil.copytree(examples, folder)
        tools = Path(top, "bin")
        tools.mkdir()
        (tools / "Kovalt").symlink_to(program)
        (tools / "kovalt-edit").symlink_to(EDIT_SCRIPT)
        (tools / "sudo").write_text(SUDO, encoding="utf-8")
        (tools / "sudo").chmod(0o755)
        # Marks the end of each command's output. The next command may use its status, which the mark keeps.
        mark = '\n{ status=$?; printf "\\001\\n"; (exit "$status"); }\n'
        done = subprocess.run(
            [shell, "-c", "exec 2>&1\n" + "".join(command.text + mark for command in commands)],
            cwd=folder,
            env={
                **os.environ,
                "PATH": f"{tools}:{os.environ['PATH']}",
                "LC_ALL": "C.UTF-8",
                "HOME": top,
                "prefix": str(prefix),
            },
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            timeout=60,
            check=False,
        )
    outputs = done.stdout.split(END_OF_OUTPUT)[:-1]
    for command, output in zip_longest(commands, outputs):
        command.printed[shell] = None if output is None else output.decode("utf-8")


def run_blocks(blocks, *tool):
    for _, section in groupby(blocks, lambda block: block.section):
        section = list(section)
        commands = [command for block in section if not block.same for command in block.commands]
        for shell in ["bash"] if any(block.bash_only for block in section) else ["bash", "dash"]:
            run_in_one_shell(shell, commands, *tool)
        for block in section:
            if block.same:
                run_in_one_shell("bash", block.commands, *tool)


def meaning(text):
    """Returns the JSON value of a text, with the order of its members, or the text if it is not JSON."""
    try:
        return json.loads(text, object_pairs_hook=lambda members: ("object", members))
    except ValueError:
        return text


def failures(path, blocks):
    previous = None
    for block in blocks:
        for command in block.commands:
            for shell, printed in command.printed.items():
                if printed != command.expected:
                    yield (
                        f"{path}:{command.line_number}: $ {command.text}\n"
                        f"shown:\n{command.expected}\n{shell} printed:\n{printed}\n"
                    )
        last = block.commands[-1]
        if block.same and (previous is None or meaning(last.expected) != meaning(previous.expected)):
            yield f"{path}:{last.line_number}: does not print the same as the block before it\n"
        previous = last


class HelpFormatter(argparse.RawDescriptionHelpFormatter):
    def add_usage(self, usage, actions, groups, prefix="Usage: "):
        super().add_usage(usage, actions, groups, prefix)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=HelpFormatter)
    parser.add_argument("--program", required=True, type=Path, help="the program that the document calls Kovalt")
    parser.add_argument("--examples", required=True, type=Path, help="the folder of the example files")
    parser.add_argument("--prefix", default="/usr", type=Path, help="the folder that the tool is installed in")
    parser.add_argument("document", type=Path)
    arguments = parser.parse_args()

    blocks = read_blocks(arguments.document)
    run_blocks(blocks, arguments.program.resolve(), arguments.examples, arguments.prefix.resolve())
    found = list(failures(arguments.document, blocks))
    commands, same = sum(len(block.commands) for block in blocks), sum(block.same for block in blocks)
    if commands == 0:
        found.append(f"{arguments.document}: no commands were found\n")
    print("\n".join(found), end="")
    print(f"{arguments.document}: {commands} commands, {same} blocks marked same, {len(found)} failures")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
