"""Types lines with TABs into a real shell, and compares the arguments that the program then receives.

    shellsTest.py SAMPLE bash|bash-completion|zsh|fish
"""

import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile

from terminal import Stuck, Terminal

SAMPLE, KIND = os.path.abspath(sys.argv[1]), sys.argv[2]
SHELL = "bash" if KIND == "bash-completion" else KIND

PREPARE = {
    "bash": "",
    "bash-completion": "source /usr/share/bash-completion/bash_completion\n",
    "zsh": "autoload -Uz compinit\ncompinit -D\n",
    "fish": "",
}
# Where a package puts the script, here below the home directory.
INSTALLED = {
    "bash-completion": ".local/share/bash-completion/completions/sample",
    "zsh": "site-functions/_sample",
    "fish": ".local/share/fish/vendor_completions.d/sample.fish",
}

# Where fish keeps what it makes of all man pages. Unless the folder is there, it starts with that, in the
# background and for minutes.
GENERATED = ".local/share/fish/generated_completions"

LEFT, LINE_START, LINE_END, ERASE_LINE = "\x02", "\x01", "\x05", "\x15"
# Gives the line up and runs another one.
INSTEAD = ERASE_LINE + "sample end"
# Runs the line as the arguments of a program that is always there.
REPORT = LINE_START + "report "

# A row: what is typed; the arguments that the program receives, or those for single shells, "" for the
# others; and what is shown meanwhile.
NAMES = [
    ("sample --v\t", ["--verbose"]),
    ("sample --verbose\t--mi\t3", ["--verbose", "--min-size=3"]),
    ("sample --m-c\t5", ["--max-count=5"]),
    ("sample --ma-c\t5", ["--max-count=5"]),
    ("sample --ma\t5", ["--max-5"]),
    ("sample --ma\tc\t5", ["--max-count=5"]),
    ("sample --ma-\td\t5", ["--max-depth=5"]),
    ("sample --m\tx", ["--mx"]),
    ("sample --m\to\tfast", ["--mode=fast"]),
    ("sample --unknown\tx", ["--unknownx"]),
    ("sample -\tx", ["--x"]),
    ("sample x --v\t", ["x", "--verbose"]),
    ("sample --mode fast --v\t", ["--mode", "fast", "--verbose"]),
    ("true; sample --v\t", ["--verbose"]),
    ("./bin/sample --v\t", ["--verbose"]),
    ("~/bin/sample --v\t", ["--verbose"]),
]
VALUES = [
    ("sample --mode=f\t", ["--mode=fast"]),
    ("sample --mode=fa\tx", ["--mode=fast", "x"]),
    ("sample --mode f\t", ["--mode", "fast"]),
    ("sample --mo=f\t", ["--mo=fast"]),
    ("sample --mode=c\tl", ["--mode=carefl"]),
    ("sample --mode=c\tu\t", ["--mode=careful"]),
    ("sample --mode c\tr\t", ["--mode", "carefree"]),
    ("sample --max-count=\t7", ["--max-count=7"]),
    ("sample --sizes=8,3\t", ["--sizes=8,32"]),
    ("sample --sizes=8,1\t0\t", ["--sizes=8,1600"]),
    ("sample --sizes 8,3\t", ["--sizes", "8,32"]),
    ("sample --link=ht\tf\t", ["--link=http://first"]),
    ("sample --link http://s\t", ["--link", "http://second"]),
]
QUOTES = [
    ("sample --title=pl\t", ["--title=plain"]),
    ("sample --title=it\t", ["--title=it's $HOME"]),
    ('sample --title="it\t', ["--title=it's $HOME"]),
    ("sample --title='it\t", ["--title=it's $HOME"]),
    ("sample --title it\t", ["--title", "it's $HOME"]),
    ('sample "--title=it\t', ["--title=it's $HOME"]),
    ("sample '--v\t", ["--verbose"]),
    ("sample --title=my\\ da\t", ["--title=my day"]),
    ('sample --title="my da\t', ["--title=my day"]),
    ("sample --title=m\ta\t", ["--title=my day"]),
    ("sample --title='m\ta\t", ["--title=my day"]),
    ('sample --title="m\ta\t', ["--title=my day"]),
    # Zsh puts a backslash in place of the quote.
    ({"": 'sample --title="m\tog"', "zsh": 'sample --title="m\tog'}, ["--title=my dog"]),
    ('sample --ti"tle=p\t', ["--title=plain"]),
    ('sample "a b" --v\t', ["a b", "--verbose"]),
    ("sample a\\ b --v\t", ["a b", "--verbose"]),
]
FILES = [
    ("sample no\t", ["notes.txt"]),
    ("sample -- no\t", ["--", "notes.txt"]),
    ("sample -- --v\tx", ["--", "--vx"]),
    ("sample --inp\tno\t", ["--input=notes.txt"]),
    ("sample --input no\t", ["--input", "notes.txt"]),
    ("sample my\\ f\t", ["my file"]),
    ("sample --input=my\\ f\t", ["--input=my file"]),
    ('sample --input="my f\t', ["--input=my file"]),
    ("sample --layers=my\\ f\t", ["--layers=my file"]),
    ("sample --layers=notes.txt,my\\ f\t", ["--layers=notes.txt,my file"]),
    ('sample --layers="notes.txt,my f\t', ["--layers=notes.txt,my file"]),
    ("sample --layers=notes.txt,do\ta\t", ["--layers=notes.txt,docs/answer"]),
    ("sample --target=d\t", {"": ["--target=docs/"], "zsh": ["--target=docs"]}),
    ("sample --target=n\tx", ["--target=nx"]),
    ("sample --target d\t", {"": ["--target", "docs/"], "zsh": ["--target", "docs"]}),
    ("sample --targets=docs,d\t", {"": ["--targets=docs,docs/"], "zsh": ["--targets=docs,docs"]}),
    ("sample --targets=docs,n\tx", ["--targets=docs,nx"]),
    ("sample --input=docs/\t", ["--input=docs/answer"]),
    ("sample ~/no\t", ["{home}/notes.txt"]),
    ("sample --input ~/no\t", ["--input", "{home}/notes.txt"]),
    ("sample odd\t", ["odd:name,with=signs"]),
    ("sample odd:na\t", ["odd:name,with=signs"]),
    ("sample --input=odd:na\t", ["--input=odd:name,with=signs"]),
    ("sample --input=\u00e4\t", ["--input=\u00e4rger"]),
    ("sample --layers=\u00fc,\u00e4\t", ["--layers=\u00fc,\u00e4rger"]),
    ("sample >no\t; sample end", ["end"]),
    ("sample > no\t; sample end", ["end"]),
    ("sample 2> no\t --v\t", ["--verbose"]),
]
VARIABLES = [("sample --input $HOME/no\t", ["--input", "{home}/notes.txt"])]
MID_WORD = [
    ("sample --mode=f x" + 2 * LEFT + "\t", ["--mode=fast", "x"]),
    # Readline keeps what stands behind the cursor.
    ("sample --ver" + 2 * LEFT + "\t", {"": ["--verbose"], "bash": ["--verboseer"]}),
    ("sample --mode=f --v" + 4 * LEFT + "\t" + LINE_END + "\t", ["--mode=fast", "--verbose"]),
]
LISTS = [
    (
        "sample --m\t\t" + INSTEAD,
        ["end"],
        {
            "bash": ["\r\n--max-count=  Stop behind so many. ", "--min-size=   Leave smaller ones out."],
            "zsh": ["--max-count=  -- Stop behind so many.\r\n--max-depth=  -- ", "--min-size=   -- Leave smaller ones out."],
            "fish": ["max-count=", "(Stop behind so many.)", "min-size=", "(Leave smaller ones out.)"],
        },
    ),
    # In the order declared.
    (
        "sample --mode=\t\t" + INSTEAD,
        ["end"],
        {"bash": ["careful   carefree  fast"], "zsh": ["careful   --mode=carefree  --mode=fast"], "fish": ["ful", "free", "fast"]},
    ),
    ("sample --title=\t\t" + INSTEAD, ["end"], ["plain"]),
]
ORDINARY = NAMES + VALUES + QUOTES + FILES + VARIABLES + MID_WORD + LISTS


class Session:
    """A shell with the files and programs of the test, which goes with all of them."""

    def __init__(self, setup="", script=True, sample=None):
        self.home = os.path.realpath(tempfile.mkdtemp(prefix="tarv-shells-"))
        for folder in ("bin", "docs", "my dir", "site-functions", GENERATED):
            os.makedirs(os.path.join(self.home, folder))
        for name in ("notes.txt", "my file", "odd:name,with=signs", "\u00e4rger", "docs/answer"):
            self.write(name, "")
        for name in ("report",) if sample else ("report", "sample"):
            os.symlink(SAMPLE, os.path.join(self.home, "bin", name))
        if sample:
            os.chmod(self.write("bin/sample", "#!/bin/sh\n" + sample), 0o755)
        self._setup = PREPARE[KIND] + (self.load_script() if script else "") + setup
        self.terminal = Terminal(SHELL, self.home, self._setup)

    def write(self, name, text):
        path = os.path.join(self.home, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def load_script(self):
        self.write("script", script_of_sample())
        return ". ~/script\n"

    def restart(self):
        self.terminal.close()
        self.terminal = Terminal(SHELL, self.home, self._setup)

    def close(self):
        TALLY.row("what runs besides the shell", self._companions())
        self.terminal.close()
        shutil.rmtree(self.home)

    def _companions(self):
        """The processes of this home directory that make completions of man pages, or None."""
        found = []
        for process in glob.glob("/proc/[0-9]*"):
            try:
                with open(process + "/environ", "rb") as environment, open(process + "/cmdline", "rb") as command:
                    is_ours = f"HOME={self.home}\0".encode() in environment.read()
                    if is_ours and b"create_manpage_completions" in (words := command.read()):
                        found.append(words)
            except OSError:
                pass  # ended meanwhile, or somebody else's
        return found or None


def script_of_sample():
    """The script as a program of the name `sample` prints it."""
    return subprocess.run(
        ["sample", "tarvoption=completion=" + SHELL], executable=SAMPLE, check=True, capture_output=True, text=True
    ).stdout


def of_this_shell(value):
    return value.get(KIND, value.get(SHELL, value.get(""))) if isinstance(value, dict) else value


def difference(session, typed, expected, shown=()):
    """What is wrong with the outcome of a row, or None."""
    try:
        arguments, output = session.terminal.run(of_this_shell(typed))
    except Stuck as stuck:
        session.restart()
        return str(stuck)
    expected = [text.replace("{home}", session.home) for text in of_this_shell(expected)]
    if arguments != expected:
        return f"received {arguments}, expected {expected}"
    plain = re.sub(r"\x1b(\[[0-9;?]*[A-Za-z]|[()][A-Z0-9]|[=>])", "", output.decode())
    missing = [text for text in of_this_shell(shown) if text not in plain]
    return f"shown {plain!r}, without {missing}" if missing else None


class Tally:
    passed = failed = 0

    def rows(self, name, rows, session):
        for row in rows:
            self.row(f"{name}: {of_this_shell(row[0])!r}", difference(session, *row))

    def row(self, name, wrong):
        if wrong:
            self.failed += 1
            print(f"FAILED {KIND} {name}: {wrong}", flush=True)
        else:
            self.passed += 1


TALLY = Tally()


def check(name, rows, **how):
    """Types `rows` in a session of their own."""
    session = Session(**how)
    TALLY.rows(name, rows, session)
    session.close()


def check_ordinary():
    check("ordinary", ORDINARY)


def check_installed():
    """The script where a package puts it, found by the shell itself."""
    if KIND not in INSTALLED:
        return
    setup = {"": "", "zsh": "fpath=(~/site-functions $fpath)\nautoload -Uz compinit\ncompinit -D\n"}
    session = Session(script=False, setup=of_this_shell(setup))
    session.write(INSTALLED[KIND], script_of_sample())
    session.restart()
    TALLY.rows("installed", [NAMES[0], VALUES[0], NAMES[2], FILES[0]], session)
    session.close()


def check_word_breaks():
    if SHELL == "bash":
        for breaks in ("=", ":", "=:"):
            setup = f"COMP_WORDBREAKS=${{COMP_WORDBREAKS//[{breaks}]}}\n"
            check(f"without {breaks} in COMP_WORDBREAKS", NAMES + VALUES + QUOTES + FILES, setup=setup)


def check_menus():
    """TAB that inserts one candidate after the other."""
    setup = {"bash": "bind 'TAB: menu-complete'\n", "zsh": "setopt menu_complete\n", "fish": ""}
    # In fish, the second TAB goes into the menu, and Enter takes what is chosen there.
    rows = [
        ({"": "sample --ma\t\t5", "fish": "sample --ma\t\t\t\r5"}, ["--max-depth=5"]),
        ({"": "sample --mode=\t\t\t", "fish": "sample --mode=\t\t\t\t\r"}, ["--mode=fast"]),
        ({"": "sample --title=m\t\t", "fish": "sample --title=m\t\t\t\r"}, ["--title=my dog"]),
    ]
    check("menu", rows, setup=of_this_shell(setup))
    if SHELL == "zsh":
        # The first TAB inserts what both have in common, the second shows them.
        rows = [("sample --ma\t\t\t\t\r5", ["--max-depth=5"]), ("sample --title=m\t\t\t\t\r", ["--title=my dog"])]
        check("menu selection", rows, setup="zstyle ':completion:*' menu select\n")
    if SHELL == "bash":
        rows = [
            ("sample --ma\tc\t5", ["--max-count=5"]),
            ("sample --m-c\t5", ["--max-count=5"]),
            ("sample --title=my\\ \ta\t", ["--title=my day"]),
            ("sample --m-\tx", ["--m-x"]),
            ("sample --m\t" + INSTEAD, ["end"], LISTS[0][2]),
        ]
        for setting in ("show-all-if-ambiguous", "show-all-if-unmodified"):
            check(setting, rows, setup=f"bind 'set {setting} on'\n")


def check_aliases():
    """Other names for the program, and functions that hide it."""
    setup = {
        "bash": "alias s=sample\ncomplete -F _tarv_sample s\nshopt -s progcomp_alias\nalias t='sample x'\n",
        "zsh": "alias s=sample\nalias t='sample x'\n",
        "fish": "alias s sample\nalias t 'sample x'\n",
    }
    rows = [
        ("s --v\t", ["--verbose"]),
    ]
    # Bash looks for an alias only where no completion is found, and bash-completion finds one for all.
    if KIND != "bash-completion":
        rows += [("t --m-c\t5", ["x", "--max-count=5"]), ("t --input=my\\ f\t", ["x", "--input=my file"])]
    check("aliases", rows, setup=of_this_shell(setup))
    setup = {"": "sample() { report hidden; }\n", "fish": "function sample; report hidden; end\n"}
    rows = [("sample --v\t" + REPORT, ["sample", "--verbose"])]
    check("function", rows, setup=of_this_shell(setup))


def check_odd_settings():
    setup = {
        "bash": "IFS='=-m/'\nset -o nounset\nshopt -s nullglob failglob nocasematch\n",
        "zsh": "IFS='=-m/'\nsetopt nounset sh_word_split ksh_arrays glob_subst\n",
        "fish": "set -g IFS '=-m/'\n",
    }
    check("odd settings", NAMES + VALUES + QUOTES + FILES, setup=of_this_shell(setup))
    check("another locale", NAMES + VALUES, setup=of_this_shell({"": "LC_ALL=C\n", "fish": "set -gx LC_ALL C\n"}))


FALLBACK = [
    ("sample no\t" + REPORT, ["sample", "notes.txt"]),
    ("sample my\\ f\t" + REPORT, ["sample", "my file"]),
    ("sample --v\tx" + REPORT, ["sample", "--vx"]),
]


def check_variables():
    """Those of the script stay its own."""
    names = "common cut files gap head how kept line longest open openSaid out program rest said text texts width words"
    rows = [(f"sample --m\t\t{ERASE_LINE}sample ${{{name}-none}}", ["none"]) for name in names.split()]
    if SHELL != "fish":
        check("variables", rows)


def check_missing_program():
    session = Session()
    os.remove(os.path.join(session.home, "bin/sample"))
    session.restart()
    TALLY.rows("missing program", FALLBACK, session)
    session.close()


def check_old_program():
    """One that answers otherwise falls back to files, and never sees the words."""
    session = Session(sample='printf "%s\\n" "$#" "$@" >~/seen\necho "tarv-complete 2 none"\nexit 2\n')
    TALLY.rows("old program", FALLBACK, session)
    with open(os.path.join(session.home, "seen"), encoding="utf-8") as file:
        seen = file.read()
    expected = f"1\ntarvoption=complete={SHELL}\n"
    TALLY.row("what an old program sees", None if seen == expected else f"saw {seen!r}")
    # One that is typed by its path is asked itself.
    os.mkdir(os.path.join(session.home, "new"))
    os.symlink(SAMPLE, os.path.join(session.home, "new/sample"))
    TALLY.rows("new beside old program", [("new/sample --v\t", ["--verbose"]), ("~/new/sample --v\t", ["--verbose"])], session)
    session.close()


HOSTILE = r"""printf 'tarv-complete 1 %s\n' "$(cat ~/files)"
printf 'a[$(touch ~/touched)]\n$(touch ~/touched)\n`touch ~/touched`\n'
printf '%b\t%b\n' '--x$(touch ~/touched)' 'a[$(touch ~/touched)]' '--x`touch ~/touched`' 'said\033[99mso' \
    '--x\033[99m' '${x[$(touch ~/touched)]}' '--x;touch ~/touched' 'said\0302\0233so' '--x\0302\0233' '%%F{red}$(touch ~/touched)'
"""


def check_hostile_program():
    """What a program prints is not evaluated, and does not reach the terminal as it is."""
    session = Session(sample=HOSTILE)
    for files in ("none", "file", "directory", "a[$(touch ~/touched)]", "$(touch ~/touched)", "`touch ~/touched`"):
        session.write("files", files)
        for typed in ("sample --x\t\t\t", "sample \t\t\t", "sample --y=\t\t"):
            name = f"hostile program, {files}: {typed!r}"
            try:
                output = session.terminal.run(typed + ERASE_LINE + ERASE_LINE + "report end")[1]
            except Stuck as stuck:
                TALLY.row(name, str(stuck))
                session.restart()
                continue
            wrong = "was obeyed" if os.path.exists(os.path.join(session.home, "touched")) else None
            wrong = wrong or (f"shown {output!r}" if b"\x1b[99m" in output or b"\xc2\x9b" in output else None)
            TALLY.row(name, wrong)
    session.close()


def main():
    check_ordinary()
    check_installed()
    check_word_breaks()
    check_menus()
    check_aliases()
    check_odd_settings()
    check_variables()
    check_missing_program()
    check_old_program()
    check_hostile_program()
    print(f"{TALLY.passed} passed, {TALLY.failed} failed")
    return 1 if TALLY.failed else 0


sys.exit(main())
