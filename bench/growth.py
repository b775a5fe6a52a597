"""Merges, array reads and concatenations of growing input; compares with jq."""

from make_data import make_growth
from measuring import Call, as_json

GROUP = "Growth"
PEER_GROUP = "Arrays and merges"
SIZES = (10_000, 100_000, 1_000_000)
QUICK_SIZES = (200, 1_000, 2_000)

WORK = {
    "concatenation, all records distinct": "--file distinct{n}.json --readObjectArrayConcat links id host",
    "concatenation, few distinct records": "--file few{n}.json --readObjectArrayConcat links id host",
    "merge, distinct names": "--addFile names_a{n}.json --addFile names_b{n}.json --read a1",
    "merge, same names": "--addFile names_a{n}.json --addFile names_a{n}.json --read a1",
    "merge, below the root": "--addFile below_a{n}.json --addFile below_a{n}.json --read top.a1",
    "merge of arrays": "--addFile array{n}.json --addFile array{n}.json --readArrayComma list",
    "several reads": "--file numbers{n}.json --read list --read list",
    "readArraySpace": "--file strings{n}.json --readArraySpace list",
    "readArraySpaceNoQuote": "--file strings{n}.json --readArraySpaceNoQuote list",
    "readArrayComma": "--file strings{n}.json --readArrayComma list",
    "readArrayCommaNoQuote": "--file numbers{n}.json --readArrayCommaNoQuote list",
}


def measure(m, record, peers):
    sizes = QUICK_SIZES if m.quick else SIZES
    for size in sizes:
        make_growth(m.folder, size)
    flat_arrays(m, record, peers, sizes[0])
    beside_jq(m, record, peers, sizes[1])
    for title, arguments in WORK.items():
        record.grow(GROUP, title, sizes, lambda size, line=arguments: f"{m.tool} " + line.format(n=size), rounds=5)


def flat_arrays(m, record, peers, size):
    # Only the smallest size, because jq joins in quadratic time.
    for kind in ("numbers", "strings"):
        calls = [Call("Kovalt", f"{m.tool} --file {kind}{size}.json --readArray list")]
        calls += peers.jq_calls(f"{{jq}} -r '.list|map(tostring)|join(\" \")' {kind}{size}.json", rounds=1)
        m.check_answers(calls)
        record.compare(PEER_GROUP, f"flat array of {size:,} {kind}", calls)


def beside_jq(m, record, peers, size):
    calls = [Call("Kovalt", f"{m.tool} --addFile names_a{size}.json --addFile names_b{size}.json")]
    calls += peers.jq_calls(f"{{jq}} -s '.[0]*.[1]' names_a{size}.json names_b{size}.json", rounds=2)
    m.check_answers(calls, as_json)
    record.compare(PEER_GROUP, f"merge of two objects of {size:,} members", calls)

    calls = [Call("Kovalt", f"{m.tool} --file distinct{size}.json --readObjectArrayConcat links id host")]
    calls += peers.jq_calls(
        "{jq} -r '[.links|group_by([.id,.host])[]|\"\\(.[0].id) \\(.[0].host)\" + "
        f"(if length>1 then \"(\\(length))\" else \"\" end)]|sort|join(\" \")' distinct{size}.json", rounds=1)
    m.check_answers(calls)
    record.compare(PEER_GROUP, f"concatenation of {size:,} records", calls)
