#!/usr/bin/env bash
# Describes LIBRARY, in the directory WORK, and compares that with abi/libtarv.abi.
#   built_description.sh WORK LIBRARY
set -euo pipefail
work=$1
library=$2
root=$(dirname "$0")/../..

rm -rf "$work"
mkdir -p "$work"
"$root/tools/update-abi" "$work" "$library"
"$root/tests/abi/check_abi.sh" description "$root/abi/libtarv.abi" "$work/libtarv.abi"
