"""Rows about calls that are refused, with the file untouched."""

import os

from edit_rows import LIST, OTHER
from row import SMALL, Row

NESTED = b'{"a":{"b":1},"b":2}'


def missing(path):
    return f"f.json: there is no {path} to remove"


FILES = [
    Row("no word at all", file=None, refused="no file is named; see kovalt-edit --help"),
    Row("an empty name", "-as k v", file="", refused="no file is named; see kovalt-edit --help"),
    Row("no such file", "-as k v", files={}, refused="f.json: does not exist; --create creates it"),
    Row("no such folder", "-as k v", file="none/f.json", create=True, refused="none/f.json: no such folder"),
    Row("a folder", "-as k v", file=".", refused=".: not a regular file"),
    Row("a pipe", "-as k v", files={}, prepare=lambda folder: os.mkfifo(folder / "f.json"),
        refused="f.json: not a regular file"),
    Row("a device", "-as k v", file="/dev/null", refused="/dev/null: not a regular file"),
    Row("several hard links", "-as k v", prepare=lambda folder: os.link(folder / "f.json", folder / "g.json"),
        refused="f.json: has several hard links"),
    Row("a name of several lines", "-as k v", file="a\nb\x1b[1m.json", files={},
        refused="a b [1m.json: does not exist; --create creates it"),
    Row("a comment", "-as k v", files={"f.json": b'{"a":1} // one'}, refused="f.json: not valid JSON"),
    Row("an empty file", "-r a", files={"f.json": b""}, refused="f.json: not valid JSON"),
    Row("a cut file", "-rm a", files={"f.json": b'{"a":1'}, refused="f.json: not valid JSON"),
]

REPORTS = [
    Row("an unknown option", "--wrong", refused="f.json: Error: invalid argument --wrong"),
    Row("an unknown option of several lines", ["--wrong\n\x1b."], refused="f.json: Error: invalid argument --wrong  ."),
    Row("a missing argument", "-as k", refused="f.json: Error: Error: missing argument(s) after -as"),
    Row("a removal without its argument", "-as k v -rm", refused="f.json: Error: Error: missing argument(s) after -rm"),
    Row("a second file", "-as k v --file g.json", refused="f.json: Error: --file already specified"),
    Row("a file to display", "-fd f.json", refused="f.json: Error: --file already specified"),
    Row("a clash of types", "-as k v -as a.b x", refused="f.json: Incompatible types for key a"),
    Row("a rejected boolean", "-ab k no",
        refused="f.json: Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, no rejected."),
    Row("a rejected boolean and the clash that follows", "-ab a no",
        refused="f.json: Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, no rejected."),
    Row("a selection that finds nothing", "-as list.id=8.n x", files={"f.json": b'{"list":[{"id":7}]}'},
        refused='f.json: Kovalt path not found with refKey=refValue "id=8"'),
    Row("a read of a missing member", "-as k v -r a -r b", refused='f.json: --read error : Path "b" does not exist'),
    Row("a text for a number", "-an k x", refused="f.json: a value given as a number is not a number"),
    Row("a number out of range", "-aan k 1 2147483648", refused="f.json: a number is out of range"),
    Row("a message that names an exception", "-r std::invalid_argument",
        refused='f.json: --read error : Path "std::invalid_argument" does not exist'),
    Row("a member of an array", "-as k v", files={"f.json": LIST},
        refused="f.json: its root or that of a merged file is not an object"),
    Row("a removal from an array", "-rm a", files={"f.json": LIST},
        refused="f.json: its root or that of a merged file is not an object"),
]

ROOTS = [
    Row("an array that would become an object", "-af other.json", files={"f.json": LIST, "other.json": OTHER},
        refused="f.json: the type of its root would change"),
    Row("an object that would become a string", ["-as", "", "{}"], refused="f.json: the type of its root would change"),
    Row("an object that would become an array", ["-aa", ""], refused="f.json: the type of its root would change"),
    Row("a number that would become a boolean", ["-ab", "", "1"], files={"f.json": b"0"},
        refused="f.json: the type of its root would change"),
    Row("null that would become an object", ["-ao", ""], files={"f.json": b"null"},
        refused="f.json: the type of its root would change"),
]

REMOVALS = [
    Row("a missing member", "-rm b", refused=missing("b")),
    Row("a missing member beside an addition", "-as k v -rm b", refused=missing("b")),
    Row("a missing member of an object", "-as k v -rm a.c", files={"f.json": NESTED}, refused=missing("a.c")),
    Row("a step that is a number, and the last name above it", "-rm a.b", files={"f.json": b'{"a":1,"b":2}'},
        refused=missing("a.b")),
    Row("a step that is missing, and the last name above it", "--remove a.x.b", files={"f.json": NESTED},
        refused=missing("a.x.b")),
    Row("the same with the parents", "--removeAndClear a.x.b", files={"f.json": NESTED}, refused=missing("a.x.b")),
    Row("the same as the last of three", "-rm b -rmc c -rmc a.x.b", files={"f.json": b'{"a":{"b":1},"b":2,"c":3}'},
        refused=missing("a.x.b")),
    Row("a step that selects an element", "-rm l.id=1", files={"f.json": b'{"l":[{"id":1}]}'},
        refused=missing("l.id=1")),
    Row("a member of an object that the call replaces", "-as a x -rm a.b", files={"f.json": NESTED},
        refused=missing("a.b")),
    Row("a member of an object that the call removes", "-rm a -rm a.b", files={"f.json": NESTED},
        refused=missing("a.b")),
    Row("a member twice", "-rm a -rm a", refused=missing("a")),
    Row("an object that the call clears", "-rmc a.b -rm a", files={"f.json": b'{"a":{"b":1}}'}, refused=missing("a")),
    Row("the first of two", "-rm b -rm a", refused=missing("b")),
    Row("a member of an array", "-rm a.b", files={"f.json": LIST}, refused=missing("a.b")),
    Row("the document", ["-rm", ""], refused=missing("")),
]

TABLES = {"refused files": FILES, "refused reports": REPORTS, "refused roots": ROOTS, "refused removals": REMOVALS}
