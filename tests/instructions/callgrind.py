"""Counts the instructions of calls. The counts are the same in every run."""

import os
import re
import subprocess


def instructions(program, arguments, folder="."):
    """Returns the number of user-mode instructions of a call of `program` in `folder`. The environment contains only
    PATH, because the start of a process reads each variable, so others would change the count."""
    call = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", os.path.abspath(program), *arguments]
    report = subprocess.run(call, cwd=folder, env={"PATH": os.environ["PATH"]}, stdout=subprocess.DEVNULL,
                            stderr=subprocess.PIPE, check=True).stderr
    # The last match, because the call itself may print on standard error before.
    return int(re.findall(rb"Collected : (\d+)", report)[-1])
