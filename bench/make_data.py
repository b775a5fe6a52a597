"""Makes the input files of the benchmark, with the same bytes every time.

There are five kinds of large files. Each is an object with the array `items`, whose objects have a number `id` and a
string `name`, and after it the object `meta`, so that `meta.version` is at the end of the file.
"""

import json
import random
from pathlib import Path

SEED = 20261121
MEGABYTE = 1_000_000
#: The bytes of distinct elements, more than the L2 cache of a processor holds. A larger file repeats them.
DISTINCT = 4 * MEGABYTE
KINDS = {
    "records": "compact records",
    "indented": "indented records",
    "catalogue": "a deep indented catalogue",
    "texts": "long texts",
    "coordinates": "coordinates",
}
#: The name of the last element, which is unique.
LAST = "the-last"

WORDS = ("größer", "Straße", "naïve", "Übermut", "jalapeño", "Ærø", "сообщение", "данные", "привет", "μετάφραση",
         "λόγος", "日本語", "翻訳", "文字列", "데이터", "ข้อความ", "message", "delivery", "the", "and", "of", "server", "ready", "🙂")
ESCAPES = ("\\n", "\\t", '\\"', "\\\\", "\\/", "\\u00e9", "\\ud83d\\ude00", "\\u2028")


def small_configuration():
    lines = {f"setting{i}": f"value {i}" for i in range(12)}
    return {"network": {"webSocketPort": 8765, "host": "localhost"}, **lines, "enabled": True, "retries": 3}


def record(number, rng):
    return {
        "id": number,
        "name": f"node-{number:07d}",
        "host": f"10.{rng.randrange(256)}.{rng.randrange(256)}.{rng.randrange(256)}",
        "load": round(rng.random() * 100, 3),
        "enabled": rng.random() < 0.5,
        "tags": rng.choices(["edge", "core", "db", "cache", "queue"], k=rng.randrange(4)),
        "limits": {"cpu": rng.randrange(64), "memory": rng.randrange(1 << 34)},
        "note": None if rng.random() < 0.3 else 'some "quoted" text, ünïcode too ' * rng.randrange(3),
    }


def category(number, rng, depth=0):
    """Returns a category with articles and nested categories, sixteen objects and arrays deep."""
    articles = [{"id": rng.randrange(1 << 20), "name": f"article {rng.randrange(10_000)}", "stock": rng.randrange(500),
                 "price": {"amount": round(rng.random() * 900, 2), "currency": "EUR"}} for _ in range(2)]
    below = [category(rng.randrange(1 << 20), rng, depth + 1)] if depth < 6 else []
    return {"id": number, "name": f"category-{number:07d}", "articles": articles, "categories": below}


def message(number, rng):
    """Returns a message as JSON text, in order to choose its escapes."""
    words = rng.choices(WORDS, k=rng.randrange(10, 120))
    for position in range(rng.randrange(8), len(words), 8):
        words[position] += rng.choice(ESCAPES)
    return (f'{{"id":{number},"name":"message-{number:07d}","from":"{rng.choice(WORDS)}",'
            f'"sent":{rng.randrange(1 << 31)},"read":{rng.choice(("true", "false"))},"text":"{" ".join(words)}"}}')


def feature(number, rng):
    """Returns an area whose corners have coordinates of up to 15 digits."""
    corners = [[float(f"{rng.uniform(10, 99):.13f}"), float(f"{rng.uniform(10, 90):.13f}")]
               for _ in range(rng.randrange(20, 200))]
    return {"id": number, "name": f"area-{number:07d}", "type": "Feature",
            "geometry": {"type": "Polygon", "coordinates": [corners]}}


def compact(value):
    return json.dumps(value, ensure_ascii=False, separators=(",", ":"))


def indented(value, indent):
    """Returns the indented text of a value in the array `items`."""
    return json.dumps(value, ensure_ascii=False, indent=indent).replace("\n", "\n" + 2 * indent * " ")


ELEMENTS = {
    "records": lambda number, rng: compact(record(number, rng)),
    "indented": lambda number, rng: indented(record(number, rng), 2),
    "catalogue": lambda number, rng: indented(category(number, rng), 4),
    "texts": message,
    "coordinates": lambda number, rng: compact(feature(number, rng)),
}


def write_kind(path, kind, size):
    """Writes a file of about `size` bytes."""
    rng = random.Random(f"{SEED} {kind}")
    indent = {"indented": 2, "catalogue": 4}.get(kind, 0)
    outer, inner = ("\n" + indent * " ", "\n" + 2 * indent * " ") if indent else ("", "")
    colon = ": " if indent else ":"
    distinct = []
    length = 0
    while length < min(size, DISTINCT):
        distinct.append((ELEMENTS[kind](len(distinct), rng) + "," + inner).encode())
        length += len(distinct[-1])
    block = b"".join(distinct)
    with path.open("wb") as file:
        file.write(f'{{{outer}"items"{colon}[{inner}'.encode())
        while file.tell() + len(block) <= size:
            file.write(block)
        for element in distinct:
            if file.tell() + len(element) > size:
                break
            file.write(element)
        last = compact({"id": len(distinct), "name": LAST}) if indent == 0 else indented(
            {"id": len(distinct), "name": LAST}, indent)
        file.write(f'{last}{outer}],{outer}"meta"{colon}{{{inner}"version"{colon}1{outer}}}'.encode())
        file.write(b"\n}" if indent else b"}")


def write(path, value, indent=None):
    separators = (",", ":") if indent is None else None
    path.write_text(json.dumps(value, ensure_ascii=False, indent=indent, separators=separators), encoding="utf-8")


def make_small(folder: Path):
    write(folder / "small.json", small_configuration(), indent=2)
    (folder / "small.ini").write_text("[network]\nwebSocketPort = 8765\n", encoding="utf-8")


def make_growth(folder: Path, size):
    """Makes the files for the growth of reads and merges."""
    rng = random.Random(f"{SEED} growth {size}")
    write(folder / f"names_a{size}.json", {f"a{i}": i for i in range(size)})
    write(folder / f"names_b{size}.json", {f"b{i}": i for i in range(size)})
    write(folder / f"below_a{size}.json", {"top": {f"a{i}": i for i in range(size)}})
    write(folder / f"array{size}.json", {"list": list(range(size))})
    write(folder / f"numbers{size}.json", {"list": [rng.randrange(1 << 31) for _ in range(size)]})
    write(folder / f"strings{size}.json", {"list": [f"text {i}, and more" for i in range(size)]})
    write(folder / f"distinct{size}.json", {"links": [{"id": i, "host": f"h{i}"} for i in range(size)]})
    write(folder / f"few{size}.json", {"links": [{"id": i % 50, "host": f"h{i % 50}"} for i in range(size)]})


def make_options(folder: Path, size):
    """Makes the files for calls with `size` options: an object at the root, one below it, and arrays to select in."""
    members = {f"k{i}": i for i in range(size)}
    write(folder / f"root{size}.json", members)
    write(folder / f"deep{size}.json", {"o": members})
    write(folder / f"select_number{size}.json", {"l": [{"i": i, "v": i} for i in range(size)]})
    write(folder / f"select_text{size}.json", {"l": [{"i": str(i), "v": i} for i in range(size)]})


if __name__ == "__main__":
    import sys

    if len(sys.argv) != 4 or sys.argv[1] not in KINDS:
        sys.exit(f"Usage: make_data.py KIND MEGABYTES FILE\nKIND is one of: {' '.join(KINDS)}")
    write_kind(Path(sys.argv[3]), sys.argv[1], int(float(sys.argv[2]) * MEGABYTE))
