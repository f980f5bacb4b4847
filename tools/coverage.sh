#!/usr/bin/env bash
# Runs every test and prints which lines and branches of the library they do not reach. Fails when one
# of them has no reason in tests/coverage-exceptions.txt, or when too few branches are reached; also when too
# few lines or branches of the companion program are.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/apt-install.sh coverage
# Counts of earlier runs add up, and would hide what the tests have stopped to reach.
find build/coverage -name '*.gcda' -delete 2>/dev/null || true
./test.sh coverage "$@"
gcovr -j "$(nproc)" --root . --filter src/ --filter include/ --exclude-throw-branches --exclude-unreachable-branches \
    --print-summary --json build/coverage/report.json build/coverage
tools/coverage-report.py build/coverage/report.json tests/coverage-exceptions.txt --page docs/reliability.md
gcovr -j "$(nproc)" --root . --filter program/ --exclude-throw-branches --exclude-unreachable-branches \
    --fail-under-line 97 --fail-under-branch 83 --print-summary --output build/coverage/program.txt \
    build/coverage/program
