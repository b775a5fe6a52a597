"""Runs the program in a fresh folder, and checks the result."""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
from dataclasses import dataclass, field

# In seconds. A call that takes longer hangs.
TIME_LIMIT = 60
NOBODY = 65534


@dataclass
class Outcome:
    """The result of a call. `status` is the exit status, or minus the number of the signal that killed it."""

    status: int
    output: bytes
    errors: bytes
    files: dict = field(default_factory=dict)


class Folder:
    """A fresh folder, which every user may enter. The end of the with block removes it."""

    def __enter__(self):
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="kovalt-"))
        self.path.chmod(0o755)
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.path)

    def put(self, files):
        for name, content in files.items():
            (self.path / name).write_bytes(content)

    def contents(self):
        return {entry.name: entry.read_bytes() for entry in sorted(self.path.iterdir()) if entry.is_file()}

    def run(self, command, *, limits=(), environment=None, as_nobody=False, closed=(), stdout=subprocess.PIPE,
            ignore=()):
        """Runs a command in the folder. `limits` are pairs of a resource and a number, `closed` are descriptors to
        close for it, and `ignore` are signals to ignore."""

        def prepare():
            import resource

            for what, number in limits:
                resource.setrlimit(what, (number, number))
            for number in ignore:
                signal.signal(number, signal.SIG_IGN)
            for descriptor in closed:
                os.close(descriptor)
            if as_nobody and os.geteuid() == 0:
                os.setgid(NOBODY)
                os.setuid(NOBODY)

        child = subprocess.run(command, cwd=self.path, stdin=subprocess.DEVNULL, stdout=stdout,
                               stderr=subprocess.PIPE, env={**os.environ, **(environment or {})}, preexec_fn=prepare,
                               timeout=TIME_LIMIT, check=False)
        return Outcome(child.returncode, child.stdout or b"", child.stderr, self.contents())


def arguments():
    """Returns the program of the command line, and whether --quick was given. With --help, prints the usage and exits.
    """
    if "--help" in sys.argv:
        print(sys.modules["__main__"].__doc__)
        sys.exit()
    quick = "--quick" in sys.argv
    program = next(argument for argument in sys.argv[1:] if argument != "--quick")
    return str(pathlib.Path(program).resolve()), quick


def call(command, files, **how):
    """Runs a command in a fresh folder that contains `files`."""
    with Folder() as folder:
        folder.put(files)
        return folder.run(command, **how)


class Checks:
    """Counts checks and reports the failed ones."""

    def __init__(self):
        self.done = 0
        self.failed = 0

    def that(self, condition, what):
        self.done += 1
        if not condition:
            self.failed += 1
            print(f"FAILED: {what}", file=sys.stderr)

    def equal(self, actual, expected, what):
        self.that(actual == expected, f"{what}: {shown(actual)} instead of {shown(expected)}")

    def finish(self):
        sys.exit(1 if self.failed else 0)


def shown(thing):
    text = repr(thing)
    return text if len(text) < 400 else f"{text[:200]}...{text[-150:]} ({len(text)} characters)"


def figure(name, value):
    """Prints a line that scripts/prove records as a figure."""
    print(f"FIGURE\t{name}\t{value}")
