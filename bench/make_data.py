"""Makes the benchmark's input files, the same bytes every time."""

import json
import random
from pathlib import Path

SEED = 20261121
MEGABYTE = 1_000_000
SIZES = (10_000, 100_000, 1_000_000)


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


def write(path, value, indent=None):
    separators = (",", ":") if indent is None else None
    path.write_text(json.dumps(value, ensure_ascii=False, indent=indent, separators=separators), encoding="utf-8")


def write_large(path, megabytes, rng):
    """A configuration of about so many megabytes, without white space, written piece by piece."""
    with path.open("w", encoding="utf-8") as file:
        size = file.write('{"meta":{"version":1},"nodes":[')
        number = 0
        while size < megabytes * MEGABYTE:
            text = json.dumps(record(number, rng), ensure_ascii=False, separators=(",", ":"))
            size += file.write("," * (number > 0) + text)
            number += 1
        file.write("]}")


def make(folder: Path):
    rng = random.Random(SEED)
    write(folder / "small.json", small_configuration(), indent=2)
    for megabytes in (5, 50, 200):
        write_large(folder / f"large{megabytes}.json", megabytes, rng)
    for size in SIZES:
        write(folder / f"names_a{size}.json", {f"a{i}": i for i in range(size)})
        write(folder / f"names_b{size}.json", {f"b{i}": i for i in range(size)})
        write(folder / f"below_a{size}.json", {"top": {f"a{i}": i for i in range(size)}})
        write(folder / f"array{size}.json", {"list": list(range(size))})
        write(folder / f"numbers{size}.json", {"list": [rng.randrange(1 << 31) for _ in range(size)]})
        write(folder / f"strings{size}.json", {"list": [f"text {i}, and more" for i in range(size)]})
        write(folder / f"distinct{size}.json", {"links": [{"id": i, "host": f"h{i}"} for i in range(size)]})
        write(folder / f"few{size}.json", {"links": [{"id": i % 50, "host": f"h{i % 50}"} for i in range(size)]})


if __name__ == "__main__":
    import sys

    target = Path(sys.argv[1])
    target.mkdir(parents=True, exist_ok=True)
    make(target)
