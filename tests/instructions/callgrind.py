"""Instruction counts of calls, which are the same in every run."""

import os
import re
import subprocess


def instructions(program, arguments, folder="."):
    """The number of instructions of user code in a call of `program` in `folder`. The environment is empty, because the
    start of every process looks through it."""
    call = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", os.path.abspath(program), *arguments]
    report = subprocess.run(call, cwd=folder, env={"PATH": os.environ["PATH"]}, stdout=subprocess.DEVNULL,
                            stderr=subprocess.PIPE, check=True).stderr
    # The call itself may report something before.
    return int(re.findall(rb"Collected : (\d+)", report)[-1])
