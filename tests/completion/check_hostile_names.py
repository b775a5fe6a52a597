#!/usr/bin/env python3
"""Completes names that try to run a command, in a real shell (bash, zsh or fish) on a pseudo-terminal.

Fails if anything but Kovalt runs, if Kovalt reads another key than the completed one, or if a name is left out although
the shell can quote it.
"""

import json
import os
import re
import sys
import tempfile
from pathlib import Path

from interactive_shell import InteractiveShell

# Each command that must not run creates the file `ran`. Some names contain one; names with a history character would
# repeat the previous command. ("@" is a history character only where it is set.)
PREVIOUS = 'true "$(touch ran)"'
HISTORY_CHARACTERS = "!^@"
EXPANSIONS = [
    "$(touch ran)", "`touch ran`", "$'\\n'touch ran", "$'\\x3b'touch ran", "$$'\\n'touch ran", "$'\\044(touch ran)'",
    '$"(touch ran)"', "${x:-$(touch ran)}", "$((`touch ran`))", "$x[$(touch ran)]", "<(touch ran)", "=(touch ran)",
    "(touch ran)", "touch ran)", "`touch ran", "$HOME", "${HOME}", "$", "*", "??????????", "[a-z]*", "*(e:touch ran:)",
    "*(e:'touch ran':)", "@(a|b)", "~", "~root", "~root/x", "=ls", "{a,b}", "a{b,c}d", "{id}",
]
SEPARATORS = [
    ";touch ran", "; touch ran;", "&touch ran", "&& touch ran", "|touch ran", "|& touch ran", ">ran", "2>ran", "&>ran",
    "<>ran", "{ touch ran;}", "# touch ran", " ", "two words", "\u00a0",
]
QUOTES_AND_BACKSLASHES = [
    "'", '"', "''", "it's", 'say "hi"', "';touch ran;'", '";touch ran;"', "'$(touch ran)'", '"$(touch ran)"', "\\", "a\\",
    "a\\\\", "\\$(touch ran)", "\\\\$(touch ran)", "\\`touch ran`", "\\';touch ran;\\'", '\\";touch ran;\\"', "\\n",
]
HISTORY = ["!!", "a!!b", "!true", "!?touch?", "!-1", "!", "\\!!", "';!!;'", '";!!;"', "!!$'", "^true^false", "@true"]
OTHERS = ["%self", "-r", "--file", "größe", "\u202etouch ran"]
NAMES = EXPANSIONS + SEPARATORS + QUOTES_AND_BACKSLASHES + HISTORY + OTHERS

# The text typed before TAB, and a name that begins with it, or with its expansion in bash: `unset` is an unset
# variable, and `ab` a file. If the rest of the name were inserted, bash could expand it with the typed text.
BEGUN = [
    ('"$', "$(touch ran)"), ('"${x:-$', "${x:-$(touch ran)}"), ('"\\', "\\$(touch ran)"), ("\\\\\\", "\\$(touch ran)"),
    ('"a\\\\\\', "a\\$(touch ran)"), ("$", "$HOME"), ("a$", "a$HOME"), ("$HO", "ME"), ("$unset-", "-x"), ("!", "!!"),
    ("!", "!true"), ('"!', "!!"), ('"\\!', "!!"), ("\\!", "!!"), ("$'", "$\\';touch ran;'"), ("~", "~root"),
    ("~ro", "~root"), ("{a,b}", "{a,b}c"), ("*", "*b"), ("?", "?b"), ("[a]", "[a]b"), ("#", "# x"),
    ('"two words', "two words;touch ran"), ("two' words'", "two words;touch ran"), ('"a"', "a;touch ran"),
    ("'a'\\''", "a'$(touch ran)"), ('a"b', "ab;touch ran"), ("$'\\'' ' -r 'x", "x$(touch ran)"),
]

# The results of completing and executing a line.
READ, KEPT = "reads the value of the name", "is unchanged"


def is_offered(shell, quote, name, is_first=False):
    """Whether `shell` can quote `name` after the open `quote`. `is_first` means at the start of the word."""
    if shell == "fish":
        return not is_first or quote != "" or name[0] != "~"
    if shell == "bash" and is_first and quote == "'" == name[0]:
        return False
    if shell == "zsh" and (re.search("{.*,.*}", name) or quote == "'" and re.search("[$`]", name)):
        return False
    return quote != '"' or "!" not in name and not (shell == "zsh" and "$'" in name)


def open_quote(shell, line):
    """The quote that `line` leaves open."""
    single = r"'(?:[^'\\]|\\.)*'" if shell == "fish" else "'[^']*'"
    closed = rf"""(?s)^(?:[^'"\\]|\\.|"(?:[^"\\]|\\.)*"|{single})*"""
    return re.sub(closed, "", line)[:1].rstrip("\\")


def write_json(path, value):
    path.write_text(json.dumps(value), encoding="utf-8")


def write_files(folder):
    """Writes each name as a member and as a value, alone in a file, and deeper in `all.json`."""
    (folder / "ab").touch()
    members, pairs, values = {}, {}, {}
    for i, name in enumerate(NAMES):
        write_json(folder / f"member{i}.json", {name: "VALUE"})
        write_json(folder / f"value{i}.json", [{"name": name, "": "VALUE"}])
        members[f"n{i}"] = {name: {"": "VALUE", "a": "VALUE"}}
        pairs[f"n{i}"] = {name: "VALUE", name + "x": "VALUE"}
        values[f"n{i}"] = [{"name": name, "": "VALUE"}, {"name": name + "x", "": "VALUE"}]
    escapes = {"a$b": "VALUE", "a`c": "VALUE"}
    write_json(folder / "all.json", {"members": members, "pairs": pairs, "values": values, "escapes": escapes})
    for i, (_, name) in enumerate(BEGUN):
        write_json(folder / f"begun{i}.json", {name: "VALUE"})
        write_json(folder / f"begun{i}-further.json", {name: {"": "VALUE", "a": "VALUE"}})


class Check:
    """Completes lines in a shell with some settings, and reports the faults."""

    def __init__(self, shell, prefix, folder, settings=()):
        self.name = shell
        self.folder = folder / "work"
        self.files = set(os.listdir(self.folder))
        self.faults = 0
        environment = {
            "PATH": f"{prefix}/bin:{os.environ['PATH']}",
            "XDG_DATA_DIRS": f"{prefix}/share:/usr/local/share:/usr/share",
        }
        start_up = {
            "bash": [". /usr/share/bash-completion/bash_completion"],
            "zsh": [f"fpath=({prefix}/share/zsh/site-functions $fpath)", "autoload -U compinit", "compinit -u"],
            "fish": [],
        }[shell]
        self.open = lambda: InteractiveShell(shell, folder / "home", self.folder, environment, [*start_up, *settings])
        self.shell = self.open()

    def complete(self, typed, keys, name, *outcomes):
        """Types `typed`, presses `keys` and executes the line. Nothing else must run, and the outcome must be one of
        `outcomes`, if there are any."""
        if any(character in name for character in HISTORY_CHARACTERS):
            self.shell.press(PREVIOUS + "\r")
            (self.folder / "ran").unlink()
        line, _ = self.shell.press(typed + keys)
        printed = self.shell.enter(open_quote(self.name, line))
        created = set(os.listdir(self.folder)) - self.files
        for file in created:
            (self.folder / file).unlink()
        outcome = KEPT if line == typed else READ if printed and "VALUE" in printed else None
        if created or outcomes and outcome not in outcomes:
            self.faults += 1
            print(f"{typed!r} becomes {line!r}, prints {printed!r} and creates the files {created}", file=sys.stderr)
        if printed is None:
            self.shell.close()
            self.shell = self.open()

    def complete_alone(self, names):
        """Completes names that are the only candidates."""
        for quote in ("", '"', "'"):
            for name in names:
                i = NAMES.index(name)
                # As a member, a name with "=" would be read as a selection.
                member = READ if is_offered(self.name, quote, name, is_first=True) and "=" not in name else KEPT
                self.complete(f"Kovalt -f member{i}.json -r {quote}", "\t", name, member)
                value = READ if is_offered(self.name, quote, name) else KEPT
                self.complete(f"Kovalt -f value{i}.json -r {quote}name=", "\t", name, value)

    def complete_deeper(self, group, names, keys):
        """Completes names among the `members`, `pairs` of members or `values` in the file of all names."""
        end = "name=" if group == "values" else ""
        for quote in ("", '"', "'"):
            for name in names:
                offered = is_offered(self.name, quote, name) and (group == "values" or "=" not in name)
                typed = f"Kovalt -f all.json -r {quote}{group}.n{NAMES.index(name)}.{end}"
                self.complete(typed, keys, name, READ if offered else KEPT)

    def complete_begun_names(self):
        # The other shells complete or expand some of these texts themselves.
        outcomes = (READ, KEPT) if self.name == "bash" else ()
        # After another command, the function is called by bash-completion instead of by bash.
        for command in ("Kovalt", "command Kovalt")[: 2 if self.name == "bash" else 1]:
            for i, (begun, name) in enumerate(BEGUN):
                self.complete(f"{command} -f begun{i}.json -r {begun}", "\t", name, *outcomes)
                for keys in ("\t", "\t\t"):
                    self.complete(f"{command} -f begun{i}-further.json -r {begun}", keys, name, *outcomes)

        i = NAMES.index("~root/x")
        self.complete(f"Kovalt -f value{i}.json -r name=~", "\t", NAMES[i], *outcomes)

    def complete_half_escapes(self):
        """Completes where all candidates continue with an escaped character."""
        for quote in ("", '"', "'"):
            for keys in ("\t", "\t\t"):
                self.complete(f"Kovalt -f all.json -r {quote}escapes.a", keys, "", READ, KEPT)

    def complete_in_backquotes(self):
        """Completes where shells remove quotes twice."""
        for quote in ("", '"'):
            for name in EXPANSIONS:
                typed = f": `Kovalt -f all.json -r {quote}members.n{NAMES.index(name)}."
                self.complete(typed, f"\t\t{quote}`", name)

    def close(self):
        self.shell.close()
        return self.faults


def check_shell(shell, prefix, folder):
    """Returns the number of faults with the default settings of the shell."""
    check = Check(shell, prefix, folder)
    check.complete_alone(NAMES)
    check.complete_deeper("members", NAMES, "\t\t")
    check.complete_deeper("values", NAMES, "\t\t")
    check.complete_begun_names()
    check.complete_half_escapes()
    check.complete_in_backquotes()
    return check.close()


def check_bash_settings(prefix, folder):
    """Returns the number of faults with a TAB that inserts each candidate in turn, with a key that inserts all of them,
    and in the C locale with another history character."""
    check = Check("bash", prefix, folder, ["bind 'TAB:menu-complete'"])
    check.complete_deeper("pairs", QUOTES_AND_BACKSLASHES, "\t")
    for i, name in enumerate(NAMES):
        check.complete(f'Kovalt -f all.json -r "values.n{i}.name=', "\x1b*", name)
    faults = check.close()
    check = Check("bash", prefix, folder, ["LC_ALL=C", "histchars=@^#"])
    check.complete(f"Kovalt -f member{NAMES.index('größe')}.json -r ", "\t", "größe", KEPT)
    check.complete(f"Kovalt -f member{NAMES.index('@true')}.json -r ", "\t", "@true", KEPT)
    return faults + check.close()


def check_zsh_settings(prefix, folder):
    """Returns the number of faults if TAB also expands the typed text, and if nothing is escaped in double quotes."""
    check = Check("zsh", prefix, folder, ["zstyle ':completion:*' completer _expand _complete"])
    check.complete_deeper("members", EXPANSIONS, "\t\t")
    check.complete("Kovalt -f member0.json -r $'", "\t", NAMES[0], KEPT)
    faults = check.close()
    check = Check("zsh", prefix, folder, ["setopt CSH_JUNKIE_QUOTES"])
    for i, name in enumerate(NAMES):
        check.complete(f'Kovalt -f all.json -r "members.n{i}.', "\t\t", name)
    return faults + check.close()


def main():
    shell, prefix = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        folder = Path(folder)
        (folder / "work").mkdir()
        write_files(folder / "work")
        faults = check_shell(shell, prefix, folder)
        if shell == "bash":
            faults += check_bash_settings(prefix, folder)
        elif shell == "zsh":
            faults += check_zsh_settings(prefix, folder)
    sys.exit(faults != 0)


if __name__ == "__main__":
    main()
