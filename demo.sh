#!/usr/bin/env bash
# Installs what is missing, builds a release build and shows the example program `seek` on the
# files of this project. Arguments go to `seek` instead:
#   ./demo.sh --search --pattern=createParser include
set -euo pipefail
cd "$(dirname "$0")"

tools/apt-install.sh build
{
    cmake --preset release -DTARV_BUILD_TESTS=OFF -B build/demo
    cmake --build build/demo --target seek --parallel "$(nproc)"
} >&2

seek=build/demo/examples/seek
if [[ $# -gt 0 ]]; then
    exec "$seek" "$@"
fi

# Shows a command line, its output and, when it is not 0, its exit code.
show() {
    printf '\n$ seek'
    printf ' %s' "$@"
    printf '\n'
    "$seek" "$@" || echo "[exit code $?]"
}

show --help
