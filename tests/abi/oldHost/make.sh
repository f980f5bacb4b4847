#!/usr/bin/env bash
# Compiles host.cpp with the headers of a commit, as a host of that time had them, and links it with the
# library of that commit. What it writes is checked in, and made anew only for another binary interface.
#   make.sh COMMIT [OUTPUT]
set -euo pipefail
here=$(realpath "$(dirname "$0")")
root=$(realpath "$here/../../..")
commit=$1
output=${2:-$here/host-$(uname -m)}

work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
git -C "$root" archive "$commit" include src cmake/tarv.map | tar -x -C "$work"
g++ -std=c++17 -O1 -shared -fPIC -fvisibility=hidden -I "$work/include" -I "$work/src" "$work"/src/*/*.cpp \
    -Wl,-soname,libtarv.so.3.3 -Wl,--version-script="$work/cmake/tarv.map" -o "$work/libtarv.so"
g++ -std=c++17 -O2 -Wall -Wextra -I "$work/include" "$here/host.cpp" -s -Wl,--as-needed -Wl,--build-id=none \
    -L "$work" -ltarv -o "$output"
echo "$output: $(stat --format=%s "$output") bytes, headers of $(git -C "$root" rev-parse "$commit")"
