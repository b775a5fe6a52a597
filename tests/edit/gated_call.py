"""A call of kovalt-edit that stops where it runs a certain tool."""

import os

from edit_call import outcome_of

# Says that the tool runs, and starts it when a line comes.
GATE = """#!/bin/sh
echo >"$0.runs"
read -r _ <"$0.go"
PATH=/usr/bin:/bin exec "${0##*/}" "$@"
"""
# The file of mktemp exists already, but its name is not known yet.
MKTEMP_GATE = """#!/bin/sh
name=$(PATH=/usr/bin:/bin mktemp "$@")
echo >"$0.runs"
read -r _ <"$0.go"
echo "$name"
"""


class GatedCall:
    """In a with block, a call that is running a tool for the first time. When the block ends, so has the call,
    and `outcome` says how."""

    def __init__(self, commands, folder, words, tool):
        gates = commands.folder(f"{folder.name}.gates")
        gate = gates / tool
        gate.write_text(MKTEMP_GATE if tool == "mktemp" else GATE, encoding="ascii")
        gate.chmod(0o755)
        self.ends = [f"{gate}.runs", f"{gate}.go"]
        for end in self.ends:
            os.mkfifo(end)
        self.opened = []
        self.call = commands.start(folder, words, environment={"PATH": f"{gates}:/usr/bin:/bin"})

    def __enter__(self):
        with open(self.ends[0], "rb") as runs:
            runs.read()
        return self

    def open_gate(self):
        """Lets the tool run, now and whenever the call starts it again."""
        self.opened = [os.open(end, os.O_RDWR) for end in self.ends]
        os.write(self.opened[1], b"\n" * 100)

    def __exit__(self, *_):
        self.outcome = outcome_of(self.call)
        for end in self.opened:
            os.close(end)
