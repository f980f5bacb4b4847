#!/usr/bin/env bash
# Installs what is missing, builds a release, checks that all libraries compute the same answers,
# measures, and prints the figures as Markdown.
#   benchmarks/run.sh [--tarv-only | --faces] [--data FOLDER]
# --data keeps the figures that plot.gp draws. --tarv-only leaves the other libraries out, to compare
# two states of this one in about a minute. --faces measures the programs of examples/ alone, beside the
# same with CLI11 and cxxopts.
set -euo pipefail
cd "$(dirname "$0")/.."

build=build/benchmarks
groups=(build benchmark peers)
peers=ON
if [[ ${1:-} == --tarv-only ]]; then
    groups=(build benchmark)
    peers=OFF
    build=build/benchmarks-tarv
fi

{
    tools/apt-install.sh "${groups[@]}"
    cmake --preset release -B "$build" -DTARV_BUILD_TESTS=OFF -DTARV_BUILD_EXAMPLES=OFF \
        -DTARV_BUILD_BENCHMARKS=ON -DTARV_BENCHMARK_PEERS="$peers"
    cmake --build "$build" --parallel "$(nproc)"
} >&2

exec benchmarks/measure.py --build "$build" "$@"
