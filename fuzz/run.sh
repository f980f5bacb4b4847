#!/usr/bin/env bash
# Fuzzes one target for a while, starting from the corpus; new inputs stay in the build directory.
#   fuzz/run.sh TARGET SECONDS [LIBFUZZER-OPTION...]
# TARGET is arguments, calls, declarations, description, reading, scripts, streams, texts or typed.
set -euo pipefail
cd "$(dirname "$0")/.."

target=$1
seconds=$2
shift 2

# Several targets may be fuzzed at once; one builds at a time.
mkdir -p build/fuzz
exec {lock}>build/fuzz/lock
flock "$lock"
cmake --preset fuzz > /dev/null
cmake --build --preset fuzz --target "fuzz_$target" > /dev/null
exec {lock}>&-
found=build/fuzz/found/$target
mkdir -p "$found"
exec "build/fuzz/fuzz/fuzz_$target" -max_total_time="$seconds" -max_len=1024 -timeout=10 \
    -dict="fuzz/$target.dict" -artifact_prefix="$found-" -print_final_stats=1 "$@" \
    "$found" "fuzz/corpus/$target"
