"""Calls of kovalt-edit, and the state of a file after a call."""

import os
import pathlib
import shutil
import signal
import stat
import subprocess
import sys
import tempfile

sys.path.append(str(pathlib.Path(__file__).resolve().parent.parent / "faults"))

from tool_call import NOBODY, TIME_LIMIT, Checks, Outcome, arguments, figure

SCRIPT = pathlib.Path(__file__).resolve().parent.parent.parent / "edit" / "kovalt-edit"
AS_NOBODY = {"user": NOBODY, "group": NOBODY, "extra_groups": []}


class Commands:
    """Copies of both commands that every user may run, in a folder that is removed at the end of a with block."""

    def __init__(self, program):
        self.program = program

    def __enter__(self):
        # A call cannot handle signals that are ignored when it starts, as under nohup.
        for number in (signal.SIGHUP, signal.SIGINT):
            signal.signal(number, signal.SIG_DFL)
        # Not in TMPDIR, which other users may not be able to enter.
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="kovalt-edit-test-", dir="/tmp"))
        self.path.chmod(0o755)
        self.tools = self.folder("bin")
        shutil.copy(self.program, self.tools / "Kovalt")
        shutil.copy(SCRIPT, self.tools)
        self.temporary = self.folder("temporary")
        self.temporary.chmod(0o1777)
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.path)

    def folder(self, name, content=None):
        """Creates a folder that every user may enter, and f.json in it if `content` is given."""
        folder = self.path / name
        folder.mkdir()
        folder.chmod(0o755)
        if content is not None:
            (folder / "f.json").write_bytes(content)
        return folder

    def start(self, folder, words, *, before=(), environment=None, **how):
        """Starts a call in its own process group. `before` is a command that runs it."""
        how = {"umask": 0o022, "stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **how}
        environment = {**os.environ, "TMPDIR": str(self.temporary), **(environment or {})}
        return subprocess.Popen([*before, self.tools / "kovalt-edit", *words], cwd=folder, env=environment,
                                start_new_session=True, **how)

    def run(self, folder, words, *, given=None, **how):
        """Runs a call whose standard input is `given`."""
        if given is not None:
            how["stdin"] = subprocess.PIPE
        return outcome_of(self.start(folder, words, **how), given)


def outcome_of(call, given=None):
    """Waits until a call exits. Kills a call that hangs."""
    try:
        output, errors = call.communicate(given, timeout=TIME_LIMIT)
    except subprocess.TimeoutExpired:
        os.killpg(call.pid, signal.SIGKILL)
        output, errors = call.communicate()
    return Outcome(call.returncode, output or b"", errors or b"")


def identity(path):
    """Returns everything about a file that a call must not change, except the content of a folder."""
    status = path.lstat()
    identity = {"inode": status.st_ino, "mode": stat.filemode(status.st_mode), "owner": (status.st_uid, status.st_gid),
                "links": status.st_nlink, "extended": {name: os.getxattr(path, name, follow_symlinks=False)
                                                       for name in os.listxattr(path, follow_symlinks=False)}}
    if stat.S_ISREG(status.st_mode):
        identity["modified"] = status.st_mtime_ns
        identity["content"] = path.read_bytes() if os.access(path, os.R_OK) else None
    if stat.S_ISLNK(status.st_mode):
        identity["content"] = os.readlink(path)
    return identity
