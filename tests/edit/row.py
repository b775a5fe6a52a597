"""A row of a table of calls: a call of kovalt-edit in a fresh folder, and all that it prints and leaves."""

import os
from dataclasses import dataclass, field
from typing import Callable, Optional

from edit_call import NOBODY, as_nobody, attributes, identity

SMALL = b'{"a":1}'
EDITED = b'{\n  "a": 1,\n  "k": "v"\n}'
ROOT = "root"
ORDINARY = "ordinary user"


class CannotPrepare(Exception):
    """What a row needs is not to be had here."""


@dataclass
class Row:
    """What a row does not name must be empty, zero or untouched, and no other file may be left."""

    name: str
    words: object = ()  # Those after the file; a text is cut at its spaces.
    file: Optional[str] = "f.json"  # None for no words at all.
    create: bool = False
    files: dict = field(default_factory=lambda: {"f.json": SMALL})
    prepare: Optional[Callable] = None  # Called with the folder before the call, by root if root runs the test.
    given: Optional[bytes] = None  # The standard input.
    how: dict = field(default_factory=dict)
    prints: bytes = b""
    refused: Optional[str] = None  # The message of a refusal, without the name of the command.
    silent: bool = False  # The message of a refusal has nowhere to go.
    status: Optional[int] = None  # The exit status, if it is neither 0 nor the 1 of a refusal.
    leaves: dict = field(default_factory=dict)  # The content of files that are replaced or new.
    mode: str = "-rw-r--r--"  # That of a new file.
    users: tuple = (ROOT, ORDINARY)

    def run(self, commands, folder, user):
        """Runs the call as a user, in an empty folder. Yields what is wrong."""
        for name, content in self.files.items():
            path = folder / name
            path.parent.mkdir(exist_ok=True)
            path.write_bytes(content)
        if user == ORDINARY and os.geteuid() == 0:
            for path in [folder, *folder.rglob("*")]:
                os.chown(path, NOBODY, NOBODY)
        if self.prepare is not None:
            self.prepare(folder)
        before = {path: identity(path) for path in folder.rglob("*")}
        words = self.words.split() if isinstance(self.words, str) else list(self.words)
        words = [] if self.file is None else ["--create"] * self.create + [self.file] + words
        how = {**(as_nobody() if user == ORDINARY else {}), **self.how}
        outcome = commands.run(folder, words, given=self.given, **how)
        message = b"" if self.refused is None or self.silent else b"kovalt-edit: " + os.fsencode(self.refused) + b"\n"
        status = (0 if self.refused is None else 1) if self.status is None else self.status
        yield from different("status", outcome.status, status)
        yield from different("standard output", outcome.output, self.prints)
        yield from different("standard error", outcome.errors, message)
        yield from self.wrong_files(folder, before)

    def wrong_files(self, folder, before):
        leaves = {folder / name: content for name, content in self.leaves.items()}
        yield from different("files", sorted(folder.rglob("*")), sorted({*before, *leaves}))
        for path, old in before.items():
            if path not in leaves:
                yield from different(path.name, identity(path), old)
        for path, content in leaves.items():
            if not path.is_file():
                continue
            new = identity(path)
            yield from different(path.name, new["content"], content)
            if path in before:
                new_attributes = attributes(path)
                yield from different(path.name, new_attributes, {name: before[path][name] for name in new_attributes})
                if new["inode"] == before[path]["inode"]:
                    yield f"{path.name} has not been replaced"
            else:
                yield from different(path.name, new["mode"], self.mode)


def different(what, actual, expected):
    if actual != expected:
        yield f"{what}: {actual!r} instead of {expected!r}"
