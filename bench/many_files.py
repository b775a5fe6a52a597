"""Edits many small files, with one call for each and several calls at a time, as in the cookbook."""

import shlex

from make_data import make_small
from measuring import Call, as_json

GROUP = "Many files"
WORK = "edit 1,000 files, 4 at a time"
# A quick run keeps the title of a whole run.
FILES = 1_000
QUICK_FILES = 20
AT_A_TIME = 4


def parallel(folder, command):
    return f"find {folder} -name '*.json' -print0 | xargs -0 -P {AT_A_TIME} -n 1 {command}"


def measure(m, record, peers):
    files = QUICK_FILES if m.quick else FILES
    make_small(m.folder)
    lines = {"Kovalt": parallel("many0", f"{shlex.quote(m.tool)} --addString version 2.5.0 --file")}
    for number, (name, path) in enumerate(peers.jq.items(), 1):
        edit = f"""{path} '.version="2.5.0"' "$0" >"$0.new" && mv "$0.new" "$0\""""
        lines[name] = parallel(f"many{number}", f"sh -c {shlex.quote(edit)}")
    calls = []
    for number, (name, line) in enumerate(lines.items()):
        folder = f"many{number}"
        m.shell(f"mkdir {folder} && seq {files} | xargs -I N cp small.json {folder}/N.json")
        m.shell(line)
        calls.append(Call(name, ["sh", "-c", line], answer=f"cat {folder}/{files}.json"))
    m.check_answers(calls, as_json)
    record.compare(GROUP, WORK, calls, rounds=7, patience=30)
