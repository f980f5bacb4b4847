#!/usr/bin/env bash
# Compiles one of the hosts here with the headers of a commit, as a host of that time had them, and links it
# with the library of that commit. What it writes is checked in, and made anew only for another binary interface.
#   make.sh HOST COMMIT [OUTPUT]
# HOST is host or typedHost.
set -euo pipefail
here=$(realpath "$(dirname "$0")")
root=$(realpath "$here/../../..")
host=$1
commit=$2
output=${3:-$here/$host-$(uname -m)}

work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
mkdir "$work/sources"
git -C "$root" archive "$commit" | tar -x -C "$work/sources"
cmake --no-warn-unused-cli -S "$work/sources" -B "$work/build" -DCMAKE_BUILD_TYPE=Release -DTARV_BUILD_TESTS=OFF \
    -DTARV_BUILD_EXAMPLES=OFF -DTARV_BUILD_PROGRAM=OFF >/dev/null
cmake --build "$work/build" --target tarv --parallel "$(nproc)" >/dev/null
g++ -std=c++17 -O2 -Wall -Wextra -I "$work/sources/include" "$here/$host.cpp" -s -Wl,--as-needed -Wl,--build-id=none \
    -L "$work/build/src" -ltarv -o "$output"
echo "$output: $(stat --format=%s "$output") bytes, headers of $(git -C "$root" rev-parse "$commit")"
