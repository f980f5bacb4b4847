#!/usr/bin/env bash
# Describes the sources as they are, in the directory WORK, and compares that with abi/libtarv.abi.
#   built_description.sh WORK
set -euo pipefail
work=$1
root=$(dirname "$0")/../..

rm -rf "$work"
mkdir -p "$work"
"$root/tools/update-abi" "$work"
"$root/tests/abi/check_abi.sh" description "$root/abi/libtarv.abi" "$work/libtarv.abi"
