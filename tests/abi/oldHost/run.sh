#!/usr/bin/env bash
# Runs a host of an earlier time with a library, and fails when one contract does not hold.
#   run.sh HOST LIBRARY
set -euo pipefail
host=$1
LD_LIBRARY_PATH=$(dirname "$(realpath "$2")")
export LD_LIBRARY_PATH

loaded=$(ldd "$host" | sed -n 's/.*libtarv\.so\.3\.3 => \(.*\) (.*/\1/p')
if [[ $(realpath "$loaded") != "$(realpath "$2")" ]]; then
    echo "$host loads '$loaded' instead of $2" >&2
    exit 1
fi
"$host"
