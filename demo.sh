#!/usr/bin/env bash
# Installs what is missing, builds a release build and shows the example program `seek` on the
# files of this project. Arguments go to `seek` instead:
#   ./demo.sh --search --pattern=createParser include
set -euo pipefail
cd "$(dirname "$0")"

tools/apt-install.sh build >&2
{
    cmake --preset release -DTARV_BUILD_TESTS=OFF -B build/demo
    cmake --build build/demo --parallel "$(nproc)" --target seek
} >&2

seek=build/demo/examples/seek
if [[ $# -gt 0 ]]; then
    exec "$seek" "$@"
fi

say() {
    printf '\n# %s\n' "$1"
}

# Shows a command line, its output and, when it is not 0, its exit code.
show() {
    printf '$ seek'
    printf ' %s' "$@"
    printf '\n'
    "$seek" "$@" 2>&1 || echo "[exit code $?]"
}

say "An action, and options that belong to it."
show --search --pattern=createParser --context=1 include

say "Every word of a name may be abbreviated: --sea is search, --m-c is max-count."
show --sea --pat=createParser --m-c=1 include

say "A list: names to pass over."
show --count --pattern=tarv_3_3 --exclude=internal,export.h,variant.h include

say "Another action, which prints what the file would become."
show --replace --pattern=--count --with=--search examples/seek.options

say "An option file holds an action and options, one a line."
show --option-file=examples/seek.options include

say "Bad command lines: an ambiguous name, a value that is not allowed, a missing file, a foreign option."
show --co --pattern=x include
show --search --pattern=x --color=red include
show --search --pattern=x nowhere.txt
show --count --pattern=x --in-place include

say "Help."
show --help

say "Now try your own: ./demo.sh --search --pattern=TEXT FILE..."
