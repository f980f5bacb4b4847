"""Real shells on a terminal of their own, into which a test types."""

import fcntl
import os
import pty
import select
import struct
import termios
import time

PROMPT = b"ready> "
PATIENCE = 60  # seconds until a shell counts as stuck; it never takes as long when all is well

# In a folder of its own, so that nothing of the user's is read or written.
STARTUP = {
    "bash": "PS1='ready> '\nHISTFILE=\nbind 'set bell-style none'\nbind 'set enable-bracketed-paste off'\n",
    "zsh": "PS1='ready> '\nunsetopt prompt_sp\nbindkey -e\nunset zle_bracketed_paste\n",
    "fish": "function fish_prompt; printf 'ready> '; end\nfunction fish_greeting; end\n"
    "function fish_title; end\nset -g fish_autosuggestion_enabled 0\nset -g fish_history ''\n",
}
ARGUMENTS = {
    "bash": ["--noprofile", "--rcfile", "startup", "-i"],
    "zsh": ["-d", "-i"],
    "fish": ["--interactive"],
}
STARTUP_FILE = {"bash": "startup", "zsh": ".zshrc", "fish": ".config/fish/config.fish"}


class Stuck(Exception):
    """A shell did not do what is waited for."""


class Terminal:
    """One shell, started in `home`, which is also its home directory, with `setup` as a part of its
    startup file and the programs in its folder `bin` searched before the system's."""

    def __init__(self, shell, home, setup):
        path = os.path.join(home, STARTUP_FILE[shell])
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(STARTUP[shell] + setup)
        environment = {
            "PATH": os.path.join(home, "bin") + ":/usr/bin:/bin",
            "TERM": "xterm",
            "LANG": "C.UTF-8",
            "HOME": home,
            "ZDOTDIR": home,
            "XDG_CONFIG_HOME": os.path.join(home, ".config"),
            "XDG_DATA_HOME": os.path.join(home, ".local/share"),
        }
        self._output = b""
        self._process, self._master = pty.fork()
        if self._process == 0:
            os.chdir(home)
            os.execvpe(shell, [shell, *ARGUMENTS[shell]], environment)
        fcntl.ioctl(self._master, termios.TIOCSWINSZ, struct.pack("HHHH", 40, 100, 0, 0))
        self._wait_for(PROMPT)

    def close(self):
        os.close(self._master)  # the shell is hung up on
        os.waitpid(self._process, 0)

    def run(self, keys):
        """Types `keys` and Enter, and returns the arguments that a program of the test received, and all
        bytes that were printed until then."""
        start = len(self._output)
        os.write(self._master, keys.encode() + b"\r")
        end = self._wait_for(b";", self._wait_for(b"RAN:", start))
        ran = self._output[self._output.index(b"RAN:", start) + len(b"RAN:") : end - 1]
        arguments = [bytes.fromhex(part).decode() for part in ran.decode().split(",")[1:]]
        self._wait_for(PROMPT, end)
        return arguments, self._output[start:end]

    def _wait_for(self, text, start=0):
        """Reads until `text` was printed behind `start`, and returns where it ends."""
        patience = time.monotonic() + PATIENCE
        while (place := self._output.find(text, start)) < 0:
            left = patience - time.monotonic()
            if left <= 0 or not select.select([self._master], [], [], left)[0]:
                raise Stuck(f"no {text!r} behind {self._output[start:]!r}")
            try:
                self._output += os.read(self._master, 65536)
            except OSError as error:
                raise Stuck(f"ended without {text!r} behind {self._output[start:]!r}") from error
        return place + len(text)
