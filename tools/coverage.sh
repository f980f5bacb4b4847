#!/usr/bin/env bash
# Runs every test and prints which lines and branches of the library they reach.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/apt-install.sh coverage
./test.sh coverage
gcovr --root . --filter src/ --filter include/ --exclude-throw-branches --print-summary build/coverage
