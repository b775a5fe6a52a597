"""Large files of five kinds: reading the key at the end, editing one value and saving, displaying, completing."""

import json
from collections import Counter

from make_data import KINDS, LAST, MEGABYTE, write_kind
from measuring import Call, as_json

READ = "Reading one key at the end of a file"
LOAD = "Loading for an edit"
EDIT = "Editing one value and saving"
DISPLAY = "Displaying a file"
COMPLETE = "Completing the key path"
OTHER = "Other reads"

SIZES = (5, 50, 200)
MOST_READ_TIME = {"records": 0.30, "indented": 0.55, "catalogue": 0.55, "texts": 0.45, "coordinates": 0.70}
MOST_READ_MEMORY = 5 * MEGABYTE


def title(kind, megabytes):
    return f"{megabytes} MB of {KINDS[kind]}"


def measure(m, record, peers):
    for megabytes in SIZES:
        one_file(m, record, peers, "records", megabytes)
    for kind in list(KINDS)[1:]:
        one_file(m, record, peers, kind, SIZES[1])


def one_file(m, record, peers, kind, megabytes):
    """Makes all measurements of one file, and deletes it."""
    name, work = f"{kind}{megabytes}.json", title(kind, megabytes)
    # A quick run keeps the titles of a whole run. Its results say that it was quick.
    write_kind(m.folder / name, kind, int(megabytes * MEGABYTE / (1000 if m.quick else 1)))
    read(m, record, peers, name, kind, work, megabytes)
    load(m, record, name, work)
    edit(m, record, peers, name, work, megabytes)
    display(m, record, peers, name, kind, work, megabytes)
    if megabytes == SIZES[1]:
        complete(m, record, name, work)
        other_reads(m, record, peers, name, work)
    for file in (name, "edited.json", "saved.json"):
        (m.folder / file).unlink()


def read(m, record, peers, name, kind, work, megabytes):
    calls = [Call("Kovalt", f"{m.tool} --file {name} --read meta.version")]
    calls += peers.jj_calls(f"{{jj}} -i {name} meta.version")
    calls += peers.jq_calls(f"{{jq}} .meta.version {name}", rounds=1 if megabytes == SIZES[2] else 3)
    if megabytes == SIZES[0]:
        calls += peers.debian("jshon", f"jshon -F {name} -e meta -e version", rounds=3)
    m.check_answers(calls)
    # Added after the check of the answers, because they are slow.
    if megabytes == SIZES[0]:
        calls += peers.debian("gron", f"gron {name}", rounds=1)
        calls += peers.debian("yq", f"yq .meta.version {name}", rounds=1)
    calls.insert(1, Call("bare parse", f"{m.bare} load {name}", time_bound=MOST_READ_TIME[kind], reference=True))
    calls.append(Call("cat, which only copies", f"cat {name}", rounds=3, reference=True))
    record.compare(READ, work, calls, size=m.size(name), memory_at_most=MOST_READ_MEMORY)


def load(m, record, name, work):
    # The removal of a missing member loads the document like an edit but does not save it.
    loading = f"{m.tool} --file {name} --remove none --read meta.version"
    saved = (m.folder / name).stat().st_mtime_ns
    m.check_answers([Call("Kovalt", loading)], expected=b"1")
    if (m.folder / name).stat().st_mtime_ns != saved:
        raise SystemExit("a file that is only loaded was saved")
    bare = Call("bare parse", f"{m.bare} load {name}", time_bound=0.9, reference=True)
    record.compare(LOAD, work, [Call("Kovalt", loading), bare], size=m.size(name))


def edit(m, record, peers, name, work, megabytes):
    def fresh(copy):
        return f"cp {name} {copy}"

    calls = [Call("Kovalt", f"{m.tool} --file edited.json --addNumber meta.version 2", prepare=fresh("edited.json"))]
    saved = "edited.json"
    if megabytes < SIZES[2]:
        calls += peers.jj_calls("{jj} -i saved.json -o saved.json -v 2 meta.version", prepare=fresh("saved.json"))
        calls += peers.jq_calls("sh -c '{jq} .meta.version=2 saved.json > new.json && mv new.json saved.json'",
                                prepare=fresh("saved.json"), rounds=1)
    first = None
    for call in calls:
        m.shell(call.prepare)
        m.shell(call.arguments())
        answer = as_json((m.folder / saved).read_bytes())
        saved = "saved.json"
        if first is None:
            first = answer
        if answer != first or answer["meta"]["version"] != 2:
            raise SystemExit(f"{call.program} leaves a different file")
    del first, answer
    plain = Call("bare parse and write", f"{m.bare} save saved.json saved.json", prepare=fresh("saved.json"),
                 time_bound=0.8, reference=True)
    m.shell(f"cp {name} edited.json; {m.tool} --file edited.json --addNumber meta.version 1; "
            f"{m.bare} save {name} saved.json")
    same_documents(m, "edited.json", "saved.json")
    record.compare(EDIT, work, [calls[0], plain] + calls[1:], size=m.size(name))


def display(m, record, peers, name, kind, work, megabytes):
    shown, plain = f"{m.tool} --file {name}", f"{m.bare} display {name}"
    m.shell(f"{shown} > edited.json; {plain} > saved.json")
    same_documents(m, "edited.json", "saved.json")
    calls = [Call("Kovalt", shown), Call("bare parse and print", plain, time_bound=0.6, reference=True)]
    if megabytes == SIZES[0]:
        jqs = peers.jq_calls(f"{{jq}} --indent 4 . {name}", rounds=3)
        m.check_answers(calls[:1] + jqs, as_json)
        calls += jqs
    record.compare(DISPLAY, work, calls, size=m.size(name),
                   memory_at_most=int(2.6 * m.size(name)) if kind == "records" and not m.quick else None)


def same_documents(m, *names):
    """Exits unless the files contain the same value. RapidJSON writes some numbers with more digits than the tool."""
    texts = [(m.folder / name).read_bytes() for name in names]
    if texts[0] != texts[1] and json.loads(texts[0]) != json.loads(texts[1]):
        raise SystemExit(f"{names[0]} and {names[1]} are different documents")


def complete(m, record, name, work):
    tab = f"{m.completion} 4 Kovalt --file {name} --read meta.v"
    if b"meta.version" not in m.shell(tab).splitlines():
        raise SystemExit("the key path is not completed")
    reading = Call("reading the key path", f"{m.tool} --file {name} --read meta.version", time_bound=1.5,
                   reference=True)
    record.compare(COMPLETE, work, [Call("Kovalt's completion", tab), reading], size=m.size(name))


def other_reads(m, record, peers, name, work):
    """Compares other reads with the parse of RapidJSON alone, without limits."""
    items = json.loads((m.folder / name).read_bytes())["items"]
    counts = Counter(f"{item['id']} {item['name']}" for item in items)
    # The tool sorts by the bytes of UTF-8, Python by code points: the order is the same.
    concatenated = " ".join(text + (f"({count})" if count > 1 else "") for text, count in sorted(counts.items()))
    selected, last = f"items.name={LAST}.id", items[-1]["id"]
    several = json.dumps({"meta.version": "1", "meta": '{"version":1}', selected: str(last)}, indent=4)
    for reading, arguments, expected in (
            ("three reads in one call", f"--read meta.version --read meta --read {selected}", several.encode()),
            ("a selection by a text", f"--read {selected}", str(last).encode()),
            ("a concatenation of two fields", "--readObjectArrayConcat items id name", concatenated.encode())):
        calls = [Call("Kovalt", f"{m.tool} --file {name} {arguments}")]
        m.check_answers(calls, expected=expected)
        calls.append(Call("bare parse", f"{m.bare} load {name}", reference=True))
        record.compare(OTHER, f"{reading}, {work}", calls, size=m.size(name), patience=1.0)
