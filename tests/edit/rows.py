"""The rows of check-calls: a call of kovalt-edit in a fresh folder, and everything that it prints and leaves."""

import json
import os
import struct
from dataclasses import dataclass, field

SMALL = b'{"a":1}'
EDITED = b'{\n  "a": 1,\n  "k": "v"\n}'
LIST = b"[1,2]"
NESTED = b'{"a":{"b":1},"b":2}'
ROOT = "root"
ORDINARY = "ordinary user"


@dataclass
class Row:
    """Whatever a row does not state must be empty, zero or unchanged, and no other file may remain."""

    name: str
    words: object = "-as k v"  # Those after the file; a text is split at its spaces.
    file: str = "f.json"  # None for no words at all.
    create: bool = False
    files: dict = field(default_factory=lambda: {"f.json": SMALL})
    prepare: object = ":"  # A shell command or a function that runs before the call, by root if root runs the test.
    given: bytes = None  # The standard input.
    how: dict = field(default_factory=dict)
    prints: bytes = b""
    refused: str = None  # The message of a refusal, without the name of the command.
    status: int = None  # The exit status, if it is neither 0 nor the 1 of a refusal with a message.
    leaves: dict = field(default_factory=dict)  # The content of files that are replaced or new.
    mode: str = "-rw-r--r--"  # The mode of a new file.
    copies: int = 0  # The greatest number of copies that it may leave.
    users: tuple = (ROOT, ORDINARY)


def saved(document, indent=2):
    """A document with the indentation of a file, or with that of the output."""
    return json.dumps(document, indent=indent).encode()


def edits(name, words, old, new, prints=b"", **more):
    return Row(name, words, files={"f.json": old}, leaves={"f.json": new}, prints=prints, **more)


def refuses(name, words, why, old=SMALL, **more):
    return Row(name, words, files={"f.json": old, **more.pop("others", {})}, refused=f"f.json: {why}", **more)


EDITS = [("--addString", "-as", "s", "x y"), ("--addNumber", "-an", "n", "-5"), ("--addBoolean", "-ab", "b", "TRUE"),
         ("--addObject", "-ao", "o"), ("--addArray", "-aa", "l", "p", "q"), ("--addArrayNumber", "-aan", "m", "1,2"),
         ("--addArrayBoolean", "-aab", "t", "0", "1"), ("--addFile", "-af", "g.json"),
         ("--addFileAt", "-afat", "at", "g.json"), ("--remove", "-rm", "x"), ("--removeAndClear", "-rmc", "a.b")]
ALL = {"c": 2, "at": {"c": 2}, "s": "x y", "n": -5, "b": True, "o": {}, "l": ["p", "q"], "m": [1, 2],
       "t": [False, True]}
READS = [("--read", "-r", "a"), ("--readArray", "-ra", "l"), ("--readArraySpace", "-ras", "l"),
         ("--readArraySpaceNoQuote", "-rasq", "l"), ("--readArrayComma", "-rac", "l"),
         ("--readArrayCommaNoQuote", "-racq", "l"), ("--readObjectArrayConcat", "-roac", "m", "x", "y"),
         ("--readObjectArrayConcatSep", "-roacs", "m", "x", "y", "/")]
READ = b"""{
    "a": "1",
    "l": "p q", "l": "\\"p\\" \\"q\\"", "l": "p q", "l": "\\"p\\",\\"q\\"", "l": "p,q",
    "m": "1 2", "m": "1/2"
}
""".replace(b', "', b',\n    "')
HELP = [Row("help", "", file="--help", prints=b"""\
Usage: kovalt-edit [--create] FILE OPTION...

Applies the options of "Kovalt --file FILE OPTION..." completely or not at all.
Fails, without changing FILE, if Kovalt reports a problem. --create creates FILE
if it does not exist.
""")]
EVERY_BYTE = bytes(set(range(0x20, 0x100)) - set(b'"\\\x7f'))
SHELL_WORDS = "$HOME `id` * ${1} $(id) 'x' ~"
DOCUMENTS = [
    *(Row(f"edits in form {form}", [word for option in EDITS for word in (option[form], *option[2:])],
          files={"f.json": b'{"a":{"b":1},"x":0}', "g.json": b'{"c":2}'}, leaves={"f.json": saved(ALL)})
      for form in (0, 1)),
    *(Row(f"reads in form {form}", [word for option in READS for word in (option[form], *option[2:])],
          files={"f.json": b'{"a":1,"l":["p","q"],"m":[{"x":1,"y":2}]}'}, prints=READ) for form in (0, 1)),
    Row("one read", "-r a", files={"f.json": b'{"a":"  x\\n "}'}, prints=b"  x\\n \n"),
    Row("no option", "", prints=b'{\n    "a": 1\n}\n'),
    Row("nothing changes", files={"f.json": EDITED}),
    edits("an edit with reads", "-as k v -r k -r a", SMALL, EDITED, saved({"k": "v", "a": "1"}, 4) + b"\n"),
    edits("a read that prints a brace", "-rm a -r b", b'{"a":1,"b":"}"}', b'{\n  "b": "}"\n}', b"}\n"),
    edits("only the layout changes", "-an a 1", SMALL, b'{\n  "a": 1\n}'),
    edits("a number that every load changes is loaded once", "-an k 1 -rm a -r n", b'{"n":0.31579310584644404,"a":1}',
          b'{\n  "n": 0.31579310584644407,\n  "k": 1\n}', b"0.31579310584644407\n"),
    edits("a selected element", "-an l.id=7.n 1", b'{"l":[{"id":7,"n":0}]}', saved({"l": [{"id": 7, "n": 1}]})),
    edits("the root is an array", ["-aan", "", "3", "-r", ""], LIST, b"[\n  3\n]", b"[3]\n"),
    edits("the root is a number", ["-an", "", "-12"], b" 1", b"-12"),
    edits("the root is a string", ["-as", "", "{"], b'""', b'"{"'),
    edits("every byte that needs no escape", [b"-as", b"k", EVERY_BYTE, b"-rm", b"a", b"-r", b"k"], SMALL,
          b'{\n  "k": "' + EVERY_BYTE + b'"\n}', EVERY_BYTE + b"\n"),
    edits("words that a shell would expand", ["-as", "k", SHELL_WORDS, "-rm", "a", "-r", "k"], SMALL,
          b'{\n  "k": "%b"\n}' % SHELL_WORDS.encode(), SHELL_WORDS.encode() + b"\n"),
    edits("runs of spaces in a text", "-as k v", b'{"a":"    x    y  "}', b'{\n  "a": "    x    y  ",\n  "k": "v"\n}'),
    edits("thousands of options", [*"-an n 1".split() * 2000, "-rm", "a"], SMALL, b'{\n  "n": 1\n}'),
    edits("two members with one name", "-rm a -rm a", b'{"a":1,"a":2}', b"{}"),
    edits("removals that clear", "-rmc a.b.c -rm x -rmc a.d", b'{"a":{"b":{"c":1},"d":2},"x":3}', b"{}"),
    edits("a member and then its parent", "-rm a.b -rm a", NESTED, b'{\n  "b": 2\n}'),
    edits("names with an equals sign", "-rm x=y -rm o.x=y", b'{"x":[{"y":1}],"x=y":1,"o":{"x=y":2}}',
          saved({"x": [{"y": 1}], "o": {}})),
    edits("values that look like removals", "-as k -rm -as -rm a -aa -rmc p -rm k -r -rm", b"{}",
          saved({"-rmc": ["p"], "-rm": "a"}), b"a\n"),
    edits("a value that looks like a removal, without effect", "-as k -rm -as k v", SMALL, EDITED),
    edits("removals after lists", "-aa l -rm a -roac l -rmc b.c -roacs l x , -rm d", b'{"a":1,"b":{"c":2},"d":3}',
          b'{\n  "l": []\n}', b'{\n    "l": "",\n    "l": ""\n}\n'),
    edits("the file merged into itself", "-afat o f.json", SMALL, saved({"a": 1, "o": {"a": 1}})),
    edits("standard input", "-af /dev/stdin", SMALL, EDITED, given=b'{"k":"v"}\n\n'),
    edits("standard input beside a removal and a read", "-afat o /dev/stdin -rm a -r o", SMALL,
          saved({"o": {"b": 1}}), b'{"b":1}\n', given=b'{"b":1}'),
    edits("a long standard input", "-af /dev/stdin -rm k", SMALL, saved({"a": 1}), given=saved({"k": "x" * 500_000})),
    edits("values that name standard input and output", "-as k /dev/stdin -as o /dev/stdout", b"{}",
          saved({"k": "/dev/stdin", "o": "/dev/stdout"}), given=b'{"k":"other"}'),
]

ROOT_CHANGES = "the type of its root would change"
NOT_AN_OBJECT = "its root or that of a merged file is not an object"
REPORTED = [
    refuses("a comment", "-as k v", "not valid JSON", b'{"a":1} // one'),
    refuses("an unknown option of several lines", ["--wrong\n\x1b."], "Error: invalid argument --wrong  ."),
    refuses("a missing argument", "-as k v -rm", "Error: Error: missing argument(s) after -rm"),
    refuses("a clash of types, twice", "-as a.b x -as a.c x", "Incompatible types for key a"),
    refuses("a read of a missing member", "-as k v -r std::invalid_argument",
            '--read error : Path "std::invalid_argument" does not exist'),
    refuses("a text for a number", "-an k x", "a value given as a number is not a number"),
    refuses("a number out of range", "-aan k 1 2147483648", "a number is out of range"),
    refuses("a merged array", "-afat o g.json", NOT_AN_OBJECT, others={"g.json": LIST}),
    refuses("a merged file that is not JSON", "-afat o g.json", "Could not parse json file g.json",
            others={"g.json": b"{"}),
    refuses("JSON with NUL bytes", "-af /dev/stdin", "Could not parse json file /dev/stdin", given=b'{\0"k":\0"v"}\0'),
    refuses("an array that would become an object", "-af g.json", ROOT_CHANGES, LIST, others={"g.json": b"{}"}),
    refuses("a number that would become a boolean", ["-ab", "", "1"], ROOT_CHANGES, b"0"),
]

REMOVALS = [refuses(f"the removal {words}", words, f"there is no {path} to remove", old) for words, path, old in (
    ("-rm b", "b", SMALL), ("-as k v -rm a.c", "a.c", NESTED), ("--remove a.x.b", "a.x.b", NESTED),
    ("--removeAndClear a.x.b", "a.x.b", NESTED), ("-rm b -rmc c -rmc a.x.b", "a.x.b", b'{"a":{"b":1},"b":2,"c":3}'),
    ("-rm a.b", "a.b", b'{"a":1,"b":2}'), ("-as a x -rm a.b", "a.b", NESTED), ("-rm a -rm a.b", "a.b", NESTED),
    ("-rm a -rm a", "a", SMALL), ("-rmc a.b -rm a", "a", b'{"a":{"b":1}}'), ("-rm b -rm a", "b", SMALL),
    ("-aa l -rm b", "b", SMALL), ("-rm l.id=1", "l.id=1", b'{"l":[{"id":1}]}'))]


def extended(path, name, value):
    return lambda folder: os.setxattr(folder / path, name, value)


# An access control list of (tag, permissions, id): owner, user 1234, group, mask, others.
ACCESS = struct.pack("<I", 2) + b"".join(struct.pack("<HHI", *entry) for entry in (
    (1, 6, 0xFFFFFFFF), (2, 6, 1234), (4, 0, 0xFFFFFFFF), (16, 6, 0xFFFFFFFF), (32, 0, 0xFFFFFFFF)))
NOT_KEPT = "cannot copy its attributes"
NO_COPY = "cannot create a copy in its folder"
FILES = [
    *(Row(f"the name {name!r}", file=name, create=True, files={name: SMALL, "f": b"{}"}, leaves={name: EDITED})
      for name in ("-x", "--create", "f\n\n", "$d'\"*\\\n/ f'\"*\\ ")),
    Row("a link", file="d/l", prepare="mkdir d && ln -s ../f.json d/l", leaves={"f.json": EDITED}),
    Row("a link to nothing", file="l", prepare="ln -s none l", refused="l: does not exist; --create creates it"),
    Row("the copy of a killed call", prepare="echo '{' >.kovalt-edit.AAAAAAAAAA", leaves={"f.json": EDITED}),
    Row("a new file", ["-aan", "", "1"], create=True, files={}, leaves={"f.json": b"[\n  1\n]"}),
    Row("a new private file", "-ao o", create=True, files={}, how={"umask": 0o077}, mode="-rw-------",
        leaves={"f.json": saved({"o": {}})}),
    Row("a new file with the access control list of its folder", "-ao o", create=True, files={}, mode="-rw-rw----",
        prepare=extended(".", "system.posix_acl_default", ACCESS), leaves={"f.json": saved({"o": {}})}),
    Row("only reads of nothing", ["-r", ""], create=True, files={}, prints=b"{}\n"),
    *(Row(name, prepare=prepare, leaves={"f.json": EDITED}, users=users, how=how) for name, users, how, prepare in (
        ("a private file", (ROOT, ORDINARY), {"umask": 0}, "chmod 600 f.json"),
        ("special bits of the mode", (ROOT, ORDINARY), {"umask": 0o077}, "chmod 6766 f.json"),
        ("an extended attribute", (ROOT, ORDINARY), {}, extended("f.json", "user.comment", b"\0one")),
        ("an access control list", (ROOT, ORDINARY), {}, extended("f.json", "system.posix_acl_access", ACCESS)),
        ("only the folder has a list", (ROOT, ORDINARY), {}, extended(".", "system.posix_acl_default", ACCESS)),
        ("another owner", (ROOT,), {}, "chown 1234:5678 f.json && chmod 4640 f.json"),
        ("a read-only file of root", (ROOT,), {}, "chmod 444 f.json"),
        ("an attribute that only root can set", (ROOT,), {}, extended("f.json", "security.comment", b"1")))),
    *(refuses(name, "-as k v", why, users=(ORDINARY,), prepare=prepare) for name, why, prepare in (
        ("an attribute that the user cannot set", NOT_KEPT, extended("f.json", "security.comment", b"1")),
        ("an owner that the user cannot set", NOT_KEPT, "chown 0:0 f.json && chmod 666 f.json"),
        ("a group that the user cannot set", NOT_KEPT, "chown :5678 f.json && chmod 664 f.json"),
        ("a file that cannot be read", "not readable or not writable", "chmod 200 f.json"),
        ("a file that cannot be written", "not readable or not writable", "chmod 444 f.json"),
        ("a folder that cannot be written", NO_COPY, "chmod 555 ."),
        ("a folder that cannot be read", "flock cannot lock its folder", "chmod 311 ."))),
    Row("no word at all", file=None, refused="no file is named; see kovalt-edit --help"),
    Row("no such file", file="a\nb\x1b[1m.json", refused="a b [1m.json: does not exist; --create creates it"),
    Row("no such folder", file="none/f.json", create=True, refused="none/f.json: no such folder"),
    Row("a pipe", file="p", prepare="mkfifo p", refused="p: not a regular file"),
    Row("a merged pipe", "-afat o p", prepare="mkfifo p", refused="p: a pipe can be merged only as /dev/stdin"),
    refuses("several hard links", "-as k v", "has several hard links", prepare="ln f.json g.json"),
]


def limited(size):
    """Lets no file grow beyond a number of bytes."""
    return {"before": ["prlimit", f"--fsize={size}"]}


def closed(streams):
    return {"before": ["sh", "-c", f'exec "$0" "$@" {streams}']}


def tool(name, line="exit 1"):
    """Replaces a tool by one that fails, or that runs a shell command first."""

    def prepare(folder):
        (folder / "bin").mkdir()
        path = folder / "bin" / name
        path.write_text(f'#!/bin/sh\nPATH=/usr/bin:/bin\n{line}\nexec {name} "$@"\n', encoding="ascii")
        path.chmod(0o755)

    return {"prepare": prepare, "how": {"environment": {"PATH": "bin:/usr/bin:/bin"}}}


def from_input(path):
    """Runs the script from standard input, so that it does not know its folder."""
    return {"before": ["sh", "-c", f'PATH={path}/usr/bin:/bin exec sh -s -- "$@" <"$0"']}


FULL = open("/dev/full", "wb")
READER, UNREAD = os.pipe()
os.close(READER)
UNWRITTEN = "its copy cannot be written"
CORES = ["sh", "-c", 'ulimit -S -c "$(ulimit -H -c)"; exec "$0" "$@"']
CHANGED = "changed by another program during the call"
SURROUNDINGS = [
    # The new document has 24 bytes. In the row with a number it is `12`, which the limit cuts to `1`, the old one.
    *(refuses(f"a limit of {size} bytes", "-as k v", UNWRITTEN, how=limited(size)) for size in range(2, 24, 3)),
    edits("a limit of 24 bytes", "-as k v", SMALL, EDITED, how=limited(24)),
    refuses("a limit that leaves the old number", ["-an", "", "12"], UNWRITTEN, b"1", how=limited(1)),
    refuses("a limit of memory", "-as k v", "Kovalt failed (134), perhaps for lack of memory or space",
            saved({"a": "x" * 8_000_000}), how={"before": ["prlimit", "--as=16000000"]}),
    refuses("no limit for cores", "-an k x", "a value given as a number is not a number", how={"before": CORES}),
    edits("standard output is full", "-as k v -r k", SMALL, EDITED, how={"stdout": FULL}),
    refuses("standard output is full, without an edit", "-r a", "the output cannot be written", how={"stdout": FULL}),
    edits("nobody reads standard output", "-as k v -r k", SMALL, EDITED, how={"stdout": UNREAD}, status=143),
    Row("nobody reads the output of a read", "-r a", how={"stdout": UNREAD}, status=143),
    edits("no stream is open", "-as k v -r k", SMALL, EDITED, how=closed("<&- >&- 2>&-")),
    Row("standard error is closed for a refusal", "-rm b", how=closed("2>&-"), status=1),
    refuses("standard input is closed", "-af /dev/stdin", "Could not parse json file /dev/stdin", how=closed("<&-")),
    *(refuses(f"{name} fails", "-as k v", why, **tool(name)) for name, why in (
        ("readlink", "no such folder"), ("flock", "flock cannot lock its folder"), ("stat", "has several hard links"),
        ("mktemp", NO_COPY), ("cat", UNWRITTEN), ("sed", UNWRITTEN), ("cksum", UNWRITTEN), ("unexpand", UNWRITTEN),
        ("chown", NOT_KEPT), ("cp", NOT_KEPT), ("sync", UNWRITTEN), ("mv", "cannot be replaced"))),
    refuses("seq fails for a removal", "-rm a", "there is no a to remove", **tool("seq")),
    refuses("cksum fails for a removal", "-rm a", "there is no a to remove", **tool("cksum")),
    Row("the folder cannot be written to the disk", leaves={"f.json": EDITED, "attempt": b""},
        **tool("sync", "case $1 in */) : >attempt && exit 1 ;; esac")),
    refuses("a system without flock", "-as k v", "flock cannot lock its folder", how={"environment": {"PATH": "bin"}},
            prepare="mkdir bin && ln -s /usr/bin/tr /usr/bin/readlink bin"),
    edits("Kovalt is on the PATH", "-as k v", SMALL, EDITED, how=from_input("${0%/*}:")),
    Row("Kovalt is not installed", how=from_input(""), refused="Kovalt is not installed"),
    Row("the copy of a public file is private", leaves={"f.json": EDITED, "mode": b"-rw-------\n"},
        **tool("sed", "stat -c %A .kovalt-edit.* >mode")),
    edits("the file changes before the lock", "-as k v", b"[", EDITED, **tool("flock", "echo '{\"a\":1}' >f.json")),
    # A program that ignores the lock changes a file when the call runs a certain tool.
    Row("the file changes meanwhile", refused=f"f.json: {CHANGED}", leaves={"f.json": b"{}\n"},
        **tool("chown", "echo '{}' >g.json && mv g.json f.json")),
    Row("the file appears meanwhile", create=True, files={}, refused=f"f.json: {CHANGED}", leaves={"f.json": b"{}\n"},
        **tool("sync", "echo '{}' >f.json")),
    Row("a merged file changes meanwhile", "-af g.json", files={"f.json": SMALL, "g.json": b'{"k":"v"}'},
        refused=f"f.json: {UNWRITTEN}", leaves={"g.json": b'{"k":2}\n'},
        **tool("seq", "echo '{\"k\":2}' >h.json && mv h.json g.json")),
]

# The tool kills the script, or its process group and so itself.
CALL = '"$(cut -d " " -f 5 /proc/$$/stat)"'
EARLY = ["readlink", "flock", "stat"]  # No signal is trapped yet.


def interrupted(name, signal, target):
    early = name in EARLY or signal == "KILL"
    line = f'kill -s {signal} -- {target}{CALL}'
    if name == "mktemp":  # The file exists, but the script does not know its name yet.
        line = f'name=$(mktemp "$@")\n{line}\necho "$name"\nexit'
    return Row(f"{signal} to {target or 'the script'} at {name}", status=-NUMBERS[signal] if early else 143,
               leaves={"f.json": EDITED} if name == "mv" and not target else {}, copies=int(signal == "KILL"),
               **tool(name, line))


NUMBERS = {"HUP": 1, "INT": 2, "KILL": 9, "TERM": 15}
INTERRUPTED = [
    interrupted("sed", "HUP", ""),
    *(interrupted(name, signal, target) for signal in ("INT", "KILL", "TERM") for target in ("", "-") for name in (
        *EARLY, "mktemp", "cat", "sed", "cksum", "seq", "unexpand", "chown", "cp", "sync", "cmp", "mv")),
    Row("a tool that outlives the script keeps the lock", status=-9, leaves={"f.json": EDITED},
        **tool("mv", f"kill -s KILL {CALL}\nflock --nonblock . touch unlocked")),
]

ROWS = HELP + DOCUMENTS + REPORTED + REMOVALS + FILES + SURROUNDINGS + INTERRUPTED
