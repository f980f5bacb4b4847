#!/usr/bin/env bash
# Builds the Debian packages, has lintian check them, installs them, builds a host against what is
# then in the system, runs it, and removes the packages. Needs root.
set -euo pipefail
cd "$(dirname "$0")/../.."

work=build/deb-host
rm -rf build/deb "$work"
cmake --preset deb "$@"
cmake --build --preset deb --parallel "$(nproc)"
(cd build/deb && cpack)

packages=(build/deb/*.deb)
if [[ ${#packages[@]} -ne 2 ]]; then
    echo "Expected two packages: ${packages[*]}" >&2
    exit 1
fi
lintian --allow-root --fail-on error "${packages[@]}"

trap 'dpkg --purge libtarv-dev libtarv3.3' EXIT
dpkg --install "${packages[@]}"

# Neither host knows any path.
cmake -D project=find_package -D work="$PWD/$work/cmake" -P tests/consumer/cmakeHost.cmake
mkdir -p "$work"
# The flags are split at their blanks on purpose.
# shellcheck disable=SC2046
g++ -std=c++17 tests/consumer/host.cpp $(pkg-config --cflags --libs "tarv >= 3.3") -o "$work/host"
output=$("$work/host" --name=World --times=2)
if [[ $output != $'Hello, World!\nHello, World!\n2 values' ]]; then
    printf 'Unexpected output:\n%s\n' "$output" >&2
    exit 1
fi

trap - EXIT
dpkg --purge libtarv-dev libtarv3.3
left=$(find /usr/include/tarv_3_3 /usr/lib/x86_64-linux-gnu/libtarv* 2>/dev/null || true)
if [[ -n $left ]]; then
    printf 'Left behind:\n%s\n' "$left" >&2
    exit 1
fi
echo "The Debian packages install, work and go."
