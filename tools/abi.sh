#!/usr/bin/env bash
# Compares the binary interface of the shared library, as GCC builds it, with the descriptions in
# abi/: the exported symbols, and the types and layouts behind them.
#   tools/abi.sh            fails when they differ, and says how
#   tools/abi.sh --update   describes the library anew; review what changed, see docs/versioning.md
set -euo pipefail
cd "$(dirname "$0")/.."

tools/apt-install.sh build abi
build=build/abi
{
    cmake --preset release -B "$build" \
        "-DCMAKE_CXX_FLAGS=-g -fdebug-prefix-map=$PWD/=" -DTARV_BUILD_TESTS=OFF \
        -DTARV_BUILD_EXAMPLES=OFF
    cmake --build "$build" --parallel "$(nproc)" --target tarv
} >/dev/null
library=$build/src/libtarv.so

nm --dynamic --defined-only --with-symbol-versions "$library" | awk '{ print $2, $3 }' | LC_ALL=C sort -k 2 \
    >"$build/libtarv.symbols"

if [[ ${1:-} == --update ]]; then
    cp "$build/libtarv.symbols" abi/
    abidw --no-corpus-path --no-comp-dir-path --no-show-locs --exported-interfaces-only "$library" \
        >abi/libtarv.abi
    exit 0
fi

if ! diff -u abi/libtarv.symbols "$build/libtarv.symbols" || ! abidiff abi/libtarv.abi "$library"; then
    echo "The binary interface changed. Within a version it must not: see docs/versioning.md. If the" >&2
    echo "change is meant and compatible, describe it with tools/abi.sh --update and commit abi/." >&2
    exit 1
fi
echo "The binary interface is as abi/ describes it: $(wc -l <abi/libtarv.symbols) symbols."
