"""A shell (bash, zsh or fish) on a pseudo-terminal that a test controls by keys."""

import fcntl
import os
import pty
import re
import select
import signal
import struct
import termios
import time

READY, MORE = "<ready>", "<more>"
# Each shell binds this key to printing its line between two control characters.
REPORT = "\x18r"
# The seconds after which a shell counts as stuck.
DEADLINE = 30

# Each shell's startup file below its home folder, its command, and the first lines of that file.
START_UP = {
    "bash": (".bashrc", ["bash"], f"""
PS1='{READY}' PS2='{MORE}'
bind 'set enable-bracketed-paste off'
report() {{ printf '\\036%s\\037' "$READLINE_LINE"; }}
bind -x '"\\C-xr": report'
"""),
    "zsh": (".zshrc", ["zsh", "-d"], f"""
PS1='{READY}' PS2='{MORE}'
unsetopt prompt_cr prompt_sp
unset zle_bracketed_paste
report() {{ printf '\\036%s\\037' "$BUFFER" >/dev/tty }}
zle -N report
bindkey '^Xr' report
"""),
    "fish": (".config/fish/config.fish", ["fish"], f"""
set fish_greeting
set fish_autosuggestion_enabled 0
function fish_title; end
function fish_prompt; printf '{READY}'; end
bind \\cxr 'printf "\\036%s\\037" (commandline | string collect) >/dev/tty'
"""),
}


class InteractiveShell:
    """A shell at its prompt in `folder`. Its environment contains `environment`, and its startup file ends with `lines`."""

    def __init__(self, name, home, folder, environment, lines):
        start_up, command, settings = START_UP[name]
        start_up = home / start_up
        start_up.parent.mkdir(parents=True, exist_ok=True)
        start_up.write_text(settings + "\n".join(lines) + "\n", encoding="utf-8")
        self.name = name
        self.output = b""
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.chdir(folder)
            os.execvpe(command[0], command, {"HOME": str(home), "TERM": "xterm", "LC_ALL": "C.UTF-8", **environment})
        # Large enough for every list, so that no shell asks whether to show it.
        fcntl.ioctl(self.terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 1000, 200, 0, 0))
        self.wait_for(READY)

    def close(self):
        os.kill(self.process, signal.SIGKILL)
        os.waitpid(self.process, 0)
        os.close(self.terminal)

    def wait_for(self, pattern):
        """Waits for output that matches `pattern`. Returns the match and the output before it."""
        deadline = time.monotonic() + DEADLINE
        while not (match := re.search(pattern.encode(), self.output, re.DOTALL)):
            if not select.select([self.terminal], [], [], max(0, deadline - time.monotonic()))[0]:
                raise TimeoutError(f"{self.name} printed nothing more after {self.output!r}")
            self.output += os.read(self.terminal, 65536)
        before, self.output = self.output[: match.start()], self.output[match.end() :]
        return match, before.decode("utf-8", "replace")

    def press(self, keys):
        """Presses `keys`. Returns the resulting line and the output."""
        os.write(self.terminal, (keys + REPORT).encode("utf-8"))
        match, printed = self.wait_for("\x1e([^\x1f]*)\x1f")
        return match[1].decode("utf-8").replace("\r\n", "\n"), printed

    def enter(self, end):
        """Adds `end` to the line and executes it. Returns its output, or None if the shell waits for more of the line."""
        left, printed = self.press(end + "\r")
        if left and self.name == "fish":
            # The first Enter only closed the list of candidates.
            left, printed = self.press("\r")
        return None if left or printed.rfind(MORE) > printed.rfind(READY) else printed
