#!/usr/bin/env bash
# Installs what is missing, builds and runs every test.
#   ./test.sh [PRESET [CMAKE-ARGUMENT...]]
# PRESET is one of `cmake --list-presets`, "release" when not given.
set -euo pipefail
cd "$(dirname "$0")"

preset=${1:-release}
shift $(($# > 0))

tools/apt-install.sh build test
cmake --preset "$preset" "$@"
cmake --build --preset "$preset" --parallel "$(nproc)"
ctest --preset "$preset" --parallel "$(nproc)" --output-junit "$PWD/build/$preset/tests.xml"
