#!/bin/sh
# Builds a release, checks that all libraries compute the same answers, measures, and prints one
# table. With --tarv-only the library alone, in a fraction of the time, to compare two states of it.
#
#     benchmarks/run.sh [--tarv-only]
#
# BUILD_DIRECTORY, by default build-benchmarks beside this folder, holds what is built.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
source=$here/..
[ -f "$source/CMakeLists.txt" ] || source=$here
build=${BUILD_DIRECTORY:-$here/../build-benchmarks}
packages="g++ cmake ninja-build python3 valgrind"
targets="bench-tarv bench-handwritten bench_allocations"
if [ "${1:-}" != --tarv-only ]; then
    packages="$packages libcli11-dev libcxxopts-dev libboost-program-options-dev libtclap-dev
        libgflags-dev libabsl-dev llvm-14-dev libpopt-dev libargtable2-dev libbenchmark-dev
        zlib1g-dev libtinfo-dev"
    targets=benchmarks
fi

for package in $packages; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' && continue
    if [ "$(id -u)" = 0 ]; then apt-get install -y "$package"; else sudo apt-get install -y "$package"; fi
done >&2

cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTARV_BUILD_BENCHMARKS=ON \
    -DTARV_BUILD_TESTS=OFF -DTARV_BUILD_EXAMPLES=OFF >&2
# shellcheck disable=SC2086 # the targets are separate words
cmake --build "$build" --target $targets >&2

exec python3 "$here/measure.py" --build "$build" "$@"
