#!/usr/bin/env bash
# Prints the names that the shared library exports, with kind and version.
#   exported_symbols.sh LIBRARY
set -euo pipefail
nm --dynamic --defined-only --with-symbol-versions "$1" | awk '{ print $2, $3 }' | LC_ALL=C sort -k 2
