"""Rows about what becomes of the document: additions, removals, reads and merges."""

import os

from row import EDITED, SMALL, Row

LIST = b"[1,2]"
OTHER = b'{"b":{"c":2}}'
EVERY_BYTE = bytes(set(range(0x20, 0x100)) - set(b'"\\\x7f'))

ADDITIONS = [
    Row("a string is set", "-as k v", leaves={"f.json": EDITED}),
    Row("every addition in its long form, and a removal",
        ["--addString", "s", "x y", "--addNumber", "n", "-5", "--addBoolean", "b", "TRUE", "--addObject", "o",
         "--addArray", "l", "p", "q", "--addArrayNumber", "m", "1,2", "--addArrayBoolean", "t", "0", "1",
         "--addFile", "other.json", "--addFileAt", "at", "other.json", "--remove", "a"],
        files={"f.json": SMALL, "other.json": b'{"c":2}'},
        leaves={"f.json": b"""{
  "at": {
    "c": 2
  },
  "s": "x y",
  "n": -5,
  "b": true,
  "o": {},
  "l": [
    "p",
    "q"
  ],
  "m": [
    1,
    2
  ],
  "t": [
    false,
    true
  ],
  "c": 2
}"""}),
    Row("every addition in its short form, and a removal that clears",
        "-as s x -an n 5 -ab b 1 -ao o -aa l p,q -aan m -aab t -af other.json -afat at other.json -rmc a.b",
        files={"f.json": b'{"a":{"b":1}}', "other.json": b'{"c":2}'},
        leaves={"f.json": b"""{
  "at": {
    "c": 2
  },
  "s": "x",
  "n": 5,
  "b": true,
  "o": {},
  "l": [
    "p",
    "q"
  ],
  "m": [],
  "t": [],
  "c": 2
}"""}),
    Row("nothing changes", "-as k v", files={"f.json": EDITED}),
    Row("only the layout changes", "-an a 1", leaves={"f.json": b'{\n  "a": 1\n}'}),
    Row("a number that every load changes is loaded once", "-as k v -r n",
        files={"f.json": b'{"n":0.31579310584644404}'}, prints=b"0.31579310584644407\n",
        leaves={"f.json": b'{\n  "n": 0.31579310584644407,\n  "k": "v"\n}'}),
    Row("the same with a removal", "-as k v -rm a -r n",
        files={"f.json": b'{"n":0.31579310584644404,"a":1}'}, prints=b"0.31579310584644407\n",
        leaves={"f.json": b'{\n  "n": 0.31579310584644407,\n  "k": "v"\n}'}),
    Row("a selected element", "-an list.id=7.n 1", files={"f.json": b'{"list":[{"id":7,"n":0}]}'},
        leaves={"f.json": b'{\n  "list": [\n    {\n      "id": 7,\n      "n": 1\n    }\n  ]\n}'}),
    Row("the root is emptied", ["-ao", ""], leaves={"f.json": b"{}"}),
    Row("the root is an array", ["-aan", "", "3", "4", "-r", ""], files={"f.json": LIST}, prints=b"[3,4]\n",
        leaves={"f.json": b"[\n  3,\n  4\n]"}),
    Row("the root is a number", ["-an", "", "-12"], files={"f.json": b"1"}, leaves={"f.json": b"-12"}),
    Row("the root is a boolean", ["-ab", "", "0"], files={"f.json": b"true"}, leaves={"f.json": b"false"}),
    Row("the root is a string", ["-as", "", "{"], files={"f.json": b'""'}, leaves={"f.json": b'"{"'}),
    Row("every byte that needs no escape", [b"-as", b"k", EVERY_BYTE, b"-rm", b"a", b"-r", b"k"],
        prints=EVERY_BYTE + b"\n", leaves={"f.json": b'{\n  "k": "' + EVERY_BYTE + b'"\n}'}),
    Row("words that a shell would expand", ["-as", "k", "$HOME `id` * ${1} $(id) 'x' ~", "-rm", "a", "-r", "k"],
        prints=b"$HOME `id` * ${1} $(id) 'x' ~\n",
        leaves={"f.json": b"{\n  \"k\": \"$HOME `id` * ${1} $(id) 'x' ~\"\n}"}),
    Row("runs of spaces in a text", "-as k v", files={"f.json": b'{"a":"    x    y  "}'},
        leaves={"f.json": b'{\n  "a": "    x    y  ",\n  "k": "v"\n}'}),
    Row("thousands of options", [word for i in range(2000) for word in ("-an", "n", str(i))] + ["-rm", "a"],
        leaves={"f.json": b'{\n  "n": 1999\n}'}),
    Row("a deep document", "-an a 1", files={"f.json": b'{"a":0,"b":' + b"[" * 300 + b"]" * 300 + b"}"},
        leaves={"f.json": b'{\n  "a": 1,\n  "b": ' + b"".join(b"[\n" + b"  " * level for level in range(2, 301)) + b"[]"
                + b"".join(b"\n" + b"  " * level + b"]" for level in range(299, 0, -1)) + b"\n}"}),
]

REMOVALS = [
    Row("a member", "-rm a", leaves={"f.json": b"{}"}),
    Row("a member that the call adds later on its command line", "-rm o.k -as o.k v", files={"f.json": b"{}"},
        leaves={"f.json": b'{\n  "o": {}\n}'}),
    Row("a member, and then the object around it", "-rm a.b -rm a", files={"f.json": b'{"a":{"b":1}}'},
        leaves={"f.json": b"{}"}),
    Row("two members with one name", "-rm a -rm a", files={"f.json": b'{"a":1,"a":2}'}, leaves={"f.json": b"{}"}),
    Row("several, with the objects that they empty", "-rmc a.b.c -rm x -rmc a.d",
        files={"f.json": b'{"a":{"b":{"c":1},"d":2},"x":3}'}, leaves={"f.json": b"{}"}),
    Row("names with an equals sign", "-rm x=y -rm o.x=y",
        files={"f.json": b'{"x":[{"y":1}],"x=y":1,"o":{"x=y":2,"k":3}}'},
        leaves={"f.json": b'{\n  "x": [\n    {\n      "y": 1\n    }\n  ],\n  "o": {\n    "k": 3\n  }\n}'}),
    Row("values that look like a removal", "-as k -rm -as -rm a -aa -rmc p -rm k -r -rm", files={"f.json": b"{}"},
        prints=b"a\n", leaves={"f.json": b'{\n  "-rmc": [\n    "p"\n  ],\n  "-rm": "a"\n}'}),
    Row("a value that looks like a removal and has no effect", "-as k -rm -as k v", leaves={"f.json": EDITED}),
    Row("after a list", "-aa l -rm a -aan m 1 2 -rmc b.c", files={"f.json": b'{"a":1,"b":{"c":2}}'},
        leaves={"f.json": b'{\n  "m": [\n    1,\n    2\n  ],\n  "l": []\n}'}),
    Row("after a list of fields", "-roac list -rm a -roacs list x , -rm b",
        files={"f.json": b'{"list":[],"a":1,"b":2}'},
        prints=b'{\n    "list": "",\n    "list": ""\n}\n', leaves={"f.json": b'{\n  "list": []\n}'}),
]

READS = [
    Row("one", "-r a", prints=b"1\n"),
    Row("several", "-r a -ra l", files={"f.json": b'{"a":"x","l":[1,2]}'},
        prints=b'{\n    "a": "x",\n    "l": "1 2"\n}\n'),
    Row("a text with spaces around it", "-r a", files={"f.json": b'{"a":"  x\\n "}'}, prints=b"  x\\n \n"),
    Row("an edit with reads", "-as k v -r k -r a", leaves={"f.json": EDITED},
        prints=b'{\n    "k": "v",\n    "a": "1"\n}\n'),
    Row("a read that prints a brace", "-rm a -r b", files={"f.json": b'{"a":1,"b":"}"}'}, prints=b"}\n",
        leaves={"f.json": b'{\n  "b": "}"\n}'}),
    Row("no option", prints=b'{\n    "a": 1\n}\n'),
    Row("every form", "--read a --readArray l --readArraySpace l --readArraySpaceNoQuote l --readArrayComma l "
        "--readArrayCommaNoQuote l --readObjectArrayConcat m x y --readObjectArrayConcatSep m x y / "
        "-r a -ra l -ras l -rasq l -rac l -racq l -roac m x -roacs m x y :",
        files={"f.json": b'{"a":1,"l":["p","q"],"m":[{"x":1,"y":2}]}'},
        prints=b"""{
    "a": "1",
    "l": "p q",
    "l": "\\"p\\" \\"q\\"",
    "l": "p q",
    "l": "\\"p\\",\\"q\\"",
    "l": "p,q",
    "m": "1 2",
    "m": "1/2",
    "a": "1",
    "l": "p q",
    "l": "\\"p\\" \\"q\\"",
    "l": "p q",
    "l": "\\"p\\",\\"q\\"",
    "l": "p,q",
    "m": "1",
    "m": "1:2"
}
"""),
]

MERGES = [
    Row("a file in a folder", "-afat o sub/other.json", file="sub/f.json",
        files={"sub/f.json": SMALL, "sub/other.json": OTHER},
        leaves={"sub/f.json": b'{\n  "a": 1,\n  "o": {\n    "b": {\n      "c": 2\n    }\n  }\n}'}),
    Row("the file itself", "-afat o f.json", leaves={"f.json": b'{\n  "a": 1,\n  "o": {\n    "a": 1\n  }\n}'}),
    Row("the standard input", "-af /dev/stdin", given=b'{"k":"v"}\n\n', leaves={"f.json": EDITED}),
    Row("the standard input, beside a removal and a read", "-afat o /dev/stdin -rm a -r o", given=OTHER,
        prints=b'{"b":{"c":2}}\n', leaves={"f.json": b'{\n  "o": {\n    "b": {\n      "c": 2\n    }\n  }\n}'}),
    Row("a long standard input", "-af /dev/stdin -rm k", given=b'{"k":"' + b"x" * 500_000 + b'"}',
        leaves={"f.json": b'{\n  "a": 1\n}'}),
    Row("a standard input that is JSON without its NUL bytes", "-af /dev/stdin", given=b'{\0"k":\0"v"}\0',
        refused="f.json: Could not parse json file /dev/stdin"),
    Row("a value that names the standard input", "-as k /dev/stdin", given=b'{"k":"other"}',
        leaves={"f.json": b'{\n  "a": 1,\n  "k": "/dev/stdin"\n}'}),
    Row("no such file", "-af none.json", refused="f.json: Could not open document: none.json"),
    Row("a file that is not JSON", "-afat o other.json", files={"f.json": SMALL, "other.json": b"{"},
        refused="f.json: Could not parse json file other.json"),
    Row("a root that is not an object", "-afat o other.json", files={"f.json": SMALL, "other.json": LIST},
        refused="f.json: its root or that of a merged file is not an object"),
    Row("a pipe", "-as k v -afat o pipe", prepare=lambda folder: os.mkfifo(folder / "pipe"),
        refused="pipe: neither a regular file nor /dev/stdin"),
    Row("a device", "-af /dev/null", refused="/dev/null: neither a regular file nor /dev/stdin"),
    Row("a value that names a device", "-as k /dev/null", leaves={"f.json": b'{\n  "a": 1,\n  "k": "/dev/null"\n}'}),
]

TABLES = {"additions": ADDITIONS, "removals": REMOVALS, "reads": READS, "merges": MERGES}
