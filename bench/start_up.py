"""Small calls, whose cost is almost only the start of the process."""

from make_data import make_small
from measuring import Call, as_json

GROUP = "Start-up"
MAKE_WORK = "make a small document"
READ_WORK = "read one key of a 20-line file"
MOST_INSTRUCTIONS = 70_000


def measure(m, record, peers):
    make_small(m.folder)
    add = f"{m.tool} --addString a.b c"
    read = f"{m.tool} --file small.json --read network.webSocketPort"
    for work, command in ((MAKE_WORK, add), (READ_WORK, read)):
        record.judge(GROUP, work, "instructions", m.instructions(command), at_most=MOST_INSTRUCTIONS)

    calls = [Call("Kovalt", add)]
    calls += peers.debian("jo", "jo -d. a.b=c")
    calls += peers.jq_calls("{jq} -n '{a:{b:\"c\"}}'", rounds=5)
    m.check_answers(calls, as_json)
    calls.insert(1, Call("a program that returns 0", m.nothing, time_bound=1.25, reference=True))
    record.compare(GROUP, MAKE_WORK, calls, rounds=31, runs=60, patience=30)

    calls = [Call("Kovalt", read)]
    calls += peers.jj_calls("{jj} -i small.json network.webSocketPort")
    calls += peers.debian("jshon", "jshon -F small.json -e network -e webSocketPort")
    calls += peers.jq_calls("{jq} .network.webSocketPort small.json", rounds=3)
    calls += peers.debian("crudini", "crudini --get small.ini network webSocketPort", "crudini, of an INI file",
                          rounds=2)
    calls += peers.debian("yq", "yq .network.webSocketPort small.json", rounds=1)
    calls += peers.debian("gron", "gron small.json",
                          answer="gron small.json | sed -n 's/^json.network.webSocketPort = \\(.*\\);/\\1/p'")
    m.check_answers(calls)
    calls.append(Call("cat, which only copies", "cat small.json", reference=True))
    record.compare(GROUP, READ_WORK, calls, rounds=11, runs=30, patience=30)

    m.shell("cp small.json edited.json; cp small.json jq_edited.json; cp small.json jj_edited.json")
    calls = [Call("Kovalt", f"{m.tool} --file edited.json --addString network.host example")]
    jq_edit = "{jq} '.network.host=\\\"example\\\"' jq_edited.json > new.json && mv new.json jq_edited.json"
    calls += peers.jj_calls("{jj} -i jj_edited.json -o jj_edited.json -v example network.host")
    calls += peers.jq_calls(f'sh -c "{jq_edit}"', rounds=3)
    check_edits(m, calls)
    record.compare(GROUP, "edit a 20-line file", calls, runs=20, rounds=11, patience=30)

    names = [f"setting{i}" for i in range(10)]
    many = (f"{m.tool} --file edited.json " + " ".join(f"--addString {name} new" for name in names) + " "
            + " ".join(f"--read {name}" for name in names[:5]))
    calls = [Call("Kovalt", many, answer=f"{many} | {next(iter(peers.jq.values()))} -r '.[]'" if peers.jq else "")]
    for number, (name, path) in enumerate(peers.jq.items()):
        script = m.folder / f"fifteen_calls{number}.sh"
        edits = [f"{path} '.{key}=\"new\"' jq_edited.json > new.json && mv new.json jq_edited.json\n" for key in names]
        script.write_text("".join(edits + [f"{path} -r .{key} jq_edited.json\n" for key in names[:5]]))
        calls.append(Call(f"{name}, 15 calls", f"sh {script}"))
    m.check_answers(calls)
    record.compare(GROUP, "ten edits and five reads", calls, runs=5, rounds=3, patience=30)


def check_edits(m, calls):
    """Exits unless the edited files contain the same value."""
    first = None
    for call in calls:
        m.shell(call.arguments())
        name = {"Kovalt": "edited", "jj": "jj_edited"}.get(call.program.split()[0], "jq_edited")
        answer = as_json(m.shell(f"cat {name}.json"))
        if first is None:
            first = answer
        if answer != first:
            raise SystemExit(f"{call.program} leaves a different file")
