"""Rows about surroundings that fail: limits, streams and tools."""

import os

from row import EDITED, ORDINARY, SMALL, Row

UNWRITTEN = "f.json: its copy cannot be written"
OTHER_PATH = "PATH=/usr/bin:/bin"


def limited(size):
    """No file can grow beyond a number of bytes."""
    return {"before": ["prlimit", f"--fsize={size}"]}


# The new content has 24 bytes in the first rows. In the next ones it has 2, and what a limit leaves of it may be the old
# content.
LIMITS = [
    *(Row(f"a limit of {size} bytes", "-as k v", how=limited(size), refused=UNWRITTEN, users=(ORDINARY,))
      for size in range(24)),
    Row("a limit of 24 bytes", "-as k v", how=limited(24), leaves={"f.json": EDITED}),
    Row("a limit that leaves the old number", ["-an", "", "12"], files={"f.json": b"1"}, how=limited(1),
        refused=UNWRITTEN),
    Row("a limit that leaves the new number", ["-an", "", "12"], files={"f.json": b"1"}, how=limited(2),
        leaves={"f.json": b"12"}),
    Row("a limit of memory", "-as k v", files={"f.json": b'{"a":"' + b"x" * 8_000_000 + b'"}'},
        how={"before": ["prlimit", "--as=16000000"]},
        refused="f.json: Kovalt exited with status 134, perhaps for lack of memory"),
    Row("no limit for cores", "-an k x", how={"before": ["sh", "-c", 'ulimit -S -c "$(ulimit -H -c)"; exec "$0" "$@"']},
        refused="f.json: a value given as a number is not a number"),
    Row("a limit for a new file", "-as k v", create=True, files={}, how=limited(2), refused=UNWRITTEN),
]

FULL = open("/dev/full", "wb")
READER, UNREAD = os.pipe()
os.close(READER)


def closed(streams, shell=""):
    """What closes streams and may run the script in another shell."""
    return {"before": ["sh", "-c", f'exec {shell} "$0" "$@" {streams}']}


STREAMS = [
    Row("a standard output that is full", "-as k v -r k", how={"stdout": FULL}, leaves={"f.json": EDITED}),
    Row("a standard output that nobody reads", "-as k v -r k", how={"stdout": UNREAD}, status=141,
        leaves={"f.json": EDITED}),
    Row("a refusal that nobody reads", "-rm b", how={"stderr": UNREAD}, status=141),
    Row("a closed standard output", "-as k v -r k", how=closed(">&-"), leaves={"f.json": EDITED}),
    Row("a closed standard error", "-as k v -r k", how=closed("2>&-"), prints=b"v\n", leaves={"f.json": EDITED}),
    Row("a refusal without standard error", "-rm b", how=closed("2>&-"), silent=True, refused=""),
    Row("a closed standard input", "-as k v -r k", how=closed("<&-"), prints=b"v\n", leaves={"f.json": EDITED}),
    Row("a merge of a closed standard input", "-af /dev/stdin", how=closed("<&-"),
        refused="f.json: Could not parse json file /dev/stdin"),
    Row("a merge of a closed standard input in bash", "-af /dev/stdin", how=closed("<&-", "bash"),
        refused="f.json: Could not parse json file /dev/stdin"),
    Row("no open stream", "-as k v -r k", how=closed("<&- >&- 2>&-"), leaves={"f.json": EDITED}),
]


def tool(name, *lines):
    """A tool that fails, or runs lines of its own."""

    def prepare(folder):
        (folder / "bin").mkdir()
        path = folder / "bin" / name
        path.write_text("\n".join(["#!/bin/sh", *(lines or ["exit 1"])]), encoding="ascii")
        path.chmod(0o755)

    return {"prepare": prepare, "how": {"environment": {"PATH": "bin:/usr/bin:/bin"}}}


TOOLS = [
    Row("readlink", "-as k v", refused="f.json: no such folder", **tool("readlink")),
    Row("flock", "-as k v", refused="f.json: its folder cannot be locked", **tool("flock")),
    Row("stat", "-as k v", refused="f.json: has several hard links", **tool("stat")),
    Row("stat, and a new file that exists", "-as k v", create=True, refused="f.json: has several hard links",
        **tool("stat")),
    Row("mktemp", "-as k v", refused="f.json: no copy can be made beside it", **tool("mktemp")),
    Row("cat", "-as k v", refused=UNWRITTEN, **tool("cat")),
    Row("head", "-as k v", refused="f.json: the type of its root would change", **tool("head")),
    Row("sed", "-as k v", refused=UNWRITTEN, **tool("sed")),
    Row("cksum", "-as k v", refused=UNWRITTEN, **tool("cksum")),
    Row("unexpand", "-as k v", refused=UNWRITTEN, **tool("unexpand")),
    Row("expand", "-as k v", refused=UNWRITTEN, **tool("expand")),
    Row("seq", "-as k v -rm a", refused="f.json: there is no a to remove", **tool("seq")),
    Row("cksum for a removal", "-rm a", refused="f.json: there is no a to remove", **tool("cksum")),
    Row("chown", "-as k v", refused="f.json: its owner cannot be kept", **tool("chown")),
    Row("cp", "-as k v", refused="f.json: its mode or attributes cannot be kept", **tool("cp")),
    Row("sync", "-as k v", refused=UNWRITTEN, **tool("sync")),
    Row("sync of the folder", "-as k v", leaves={"f.json": EDITED},
        **tool("sync", 'case $2 in */) exit 1 ;; esac', f'{OTHER_PATH} exec sync "$@"')),
    Row("cmp", "-as k v", leaves={"f.json": EDITED}, **tool("cmp")),
    Row("mv", "-as k v", refused="f.json: cannot be replaced", **tool("mv")),
]

# A program that does not know the lock changes a file when the call gets to a certain tool.
MEANWHILE = [
    Row("the file", "-as k v", refused="f.json: changed by another program during the call",
        leaves={"f.json": b'{"b":2}\n'},
        **tool("chown", "echo '{\"b\":2}' >g.json && mv g.json f.json", f'{OTHER_PATH} exec chown "$@"')),
    Row("a new file", "-as k v", create=True, files={}, refused="f.json: changed by another program during the call",
        leaves={"f.json": b'{"b":2}\n'},
        **tool("sync", "echo '{\"b\":2}' >f.json", f'{OTHER_PATH} exec sync "$@"')),
    Row("a merged file", "-af g.json", refused="f.json: a merged file has changed during the call",
        files={"f.json": SMALL, "g.json": b'{"k":"v"}'}, leaves={"g.json": b"{\n"},
        **tool("cksum", "echo '{' >h.json && mv h.json g.json", f'{OTHER_PATH} exec cksum "$@"')),
]

TABLES = {"limits": LIMITS, "streams": STREAMS, "failing tools": TOOLS, "changes meanwhile": MEANWHILE}
