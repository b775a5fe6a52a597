"""Rows about the file as the system sees it: its name, its attributes, and what surrounds the call."""

import os
import struct

from edit_call import NOBODY
from row import EDITED, ORDINARY, ROOT, SMALL, CannotPrepare, Row


def linked(folder):
    (folder / "links").mkdir()
    (folder / "links" / "l.json").symlink_to("../f.json")


NAMES = [
    Row("a link", "-as k v", file="links/l.json", prepare=linked, leaves={"f.json": EDITED}),
    Row("a link to nothing", "-as k v", file="links/l.json", prepare=linked, files={},
        refused="links/l.json: does not exist; --create creates it"),
    Row("a name that looks like an option", "-as k v", file="-x", files={"-x": SMALL}, leaves={"-x": EDITED}),
    Row("a name that is an option", "-as k v", file="--create", create=True, files={"--create": SMALL},
        leaves={"--create": EDITED}),
    Row("line feeds at the end of a name", "-as k v", file="f\n\n", files={"f\n\n": SMALL, "f": b"{}"},
        leaves={"f\n\n": EDITED}),
    Row("a name that a shell would expand", "-as k v", file=" $f'\"*\\ ", files={" $f'\"*\\ ": SMALL},
        leaves={" $f'\"*\\ ": EDITED}),
    Row("a folder that a shell would expand", "-as k v", file="$d'\"*\\\n/f", files={"$d'\"*\\\n/f": SMALL},
        leaves={"$d'\"*\\\n/f": EDITED}),
    Row("the copy of a killed call", "-as k v", files={"f.json": SMALL, ".kovalt-edit.AAAAAAAAAA": b"{"},
        leaves={"f.json": EDITED}),
]

CREATIONS = [
    Row("a new file", "-as k v -r k", create=True, files={}, prints=b"v\n", leaves={"f.json": b'{\n  "k": "v"\n}'}),
    Row("a new array", ["-aan", "", "1"], create=True, files={}, leaves={"f.json": b"[\n  1\n]"}),
    Row("a new file that is empty", ["-ao", ""], create=True, files={}, leaves={"f.json": b"{}"}),
    Row("a new file that a link names", "-ao o", create=True, file="l.json", files={},
        prepare=lambda folder: (folder / "l.json").symlink_to("f.json"), leaves={"f.json": b'{\n  "o": {}\n}'}),
    Row("a new private file", "-ao o", create=True, files={}, how={"umask": 0o077}, mode="-rw-------",
        leaves={"f.json": b'{\n  "o": {}\n}'}),
    Row("a new file of a group", "-ao o", create=True, files={}, how={"umask": 0o002}, mode="-rw-rw-r--",
        leaves={"f.json": b'{\n  "o": {}\n}'}),
    Row("a file that exists", "-as k v", create=True, leaves={"f.json": EDITED}),
    Row("only reads", ["-r", ""], create=True, files={}, prints=b"{}\n"),
    Row("a removal from nothing", "-rm a", create=True, files={}, refused="f.json: there is no a to remove"),
]


def changed(path, *, mode=None, owner=None, extended=None):
    """What prepares a row by changing attributes of a file or of the folder."""

    def prepare(folder):
        try:
            for name, value in (extended or {}).items():
                os.setxattr(folder / path, name, value)
        except OSError as error:
            raise CannotPrepare(f"no {name}: {error.strerror}") from error
        if owner is not None:
            if os.geteuid() != 0:
                raise CannotPrepare("only root gives files away")
            os.chown(folder / path, *owner)
        if mode is not None:
            (folder / path).chmod(mode)

    return prepare


def access_list(*entries):
    """The value of an attribute that holds an access control list of (tag, permissions, id)."""
    return struct.pack("<I", 2) + b"".join(struct.pack("<HHI", *entry) for entry in entries)


NO_ID = 0xFFFFFFFF
USER_OBJECT, USER, GROUP_OBJECT, MASK, OTHERS = 1, 2, 4, 16, 32
ACCESS_LIST = access_list((USER_OBJECT, 6, NO_ID), (USER, 6, 1234), (GROUP_OBJECT, 0, NO_ID), (MASK, 6, NO_ID),
                          (OTHERS, 0, NO_ID))
OWNER_NOT_KEPT = "f.json: its owner cannot be kept"

ATTRIBUTES = [
    Row("a private file, whatever the umask", "-as k v", prepare=changed("f.json", mode=0o600), how={"umask": 0},
        leaves={"f.json": EDITED}),
    Row("a file that all may write, whatever the umask", "-as k v", prepare=changed("f.json", mode=0o666),
        how={"umask": 0o077}, leaves={"f.json": EDITED}),
    Row("special bits of the mode", "-as k v", prepare=changed("f.json", mode=0o6755), leaves={"f.json": EDITED}),
    Row("an extended attribute", "-as k v", prepare=changed("f.json", extended={"user.comment": b"\0one"}),
        leaves={"f.json": EDITED}),
    Row("an access control list", "-as k v",
        prepare=changed("f.json", extended={"system.posix_acl_access": ACCESS_LIST}), leaves={"f.json": EDITED}),
    Row("a file without the access control list of its folder", "-as k v",
        prepare=changed(".", extended={"system.posix_acl_default": ACCESS_LIST}), leaves={"f.json": EDITED}),
    Row("the access control list of the folder for a new file", "-ao o", create=True, files={},
        prepare=changed(".", extended={"system.posix_acl_default": ACCESS_LIST}), mode="-rw-rw----",
        leaves={"f.json": b'{\n  "o": {}\n}'}),
    Row("another owner", "-as k v", prepare=changed("f.json", mode=0o640, owner=(1234, 5678)), users=(ROOT,),
        leaves={"f.json": EDITED}),
    Row("a read-only file of root", "-as k v", prepare=changed("f.json", mode=0o444), users=(ROOT,),
        leaves={"f.json": EDITED}),
    Row("an attribute that only root can set", "-as k v",
        prepare=changed("f.json", extended={"security.comment": b"1"}),
        users=(ROOT,), leaves={"f.json": EDITED}),
    Row("an attribute that the user cannot set", "-as k v",
        prepare=changed("f.json", extended={"security.comment": b"1"}), users=(ORDINARY,),
        refused="f.json: its mode or attributes cannot be kept"),
    Row("an owner that the user cannot set", "-as k v", prepare=changed("f.json", mode=0o666, owner=(0, 0)),
        users=(ORDINARY,), refused=OWNER_NOT_KEPT),
    Row("a group that the user cannot set", "-as k v", prepare=changed("f.json", mode=0o664, owner=(NOBODY, 5678)),
        users=(ORDINARY,), refused=OWNER_NOT_KEPT),
    Row("a file that cannot be read", "-as k v", prepare=changed("f.json", mode=0o200), users=(ORDINARY,),
        refused="f.json: not readable"),
    Row("a file that cannot be written", "-as k v", prepare=changed("f.json", mode=0o444), users=(ORDINARY,),
        refused="f.json: not writable"),
    Row("a folder that cannot be written", "-as k v", prepare=changed(".", mode=0o555), users=(ORDINARY,),
        refused="f.json: no copy can be made beside it"),
    Row("a folder that cannot be written, and a new file", "-as k v", create=True, files={},
        prepare=changed(".", mode=0o555), users=(ORDINARY,), refused="f.json: no copy can be made beside it"),
    Row("a folder that cannot be read", "-as k v", prepare=changed(".", mode=0o311), users=(ORDINARY,),
        refused="f.json: its folder cannot be locked"),
]

TABLES = {"names": NAMES, "creations": CREATIONS, "attributes": ATTRIBUTES}
