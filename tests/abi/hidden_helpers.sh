#!/usr/bin/env bash
# Private functions are nobody's to call: the library exports none of them, but those that inline functions
# of the installed headers call.
#   hidden_helpers.sh CLANG LIBRARY HEADER...
set -euo pipefail
clang=$1
library=$2
shift 2
here=$(dirname "$0")
root=$here/../..

called_inline='_ZN6dovel29variant_t12release_textEv
_ZNK6dovel29variant_t11retain_textEv'

exported=$(comm -12 \
    <("$here/declarations.py" helpers "$clang" "$root/include" "$root/src" -- "$@" | LC_ALL=C sort) \
    <("$here/exported_symbols.sh" "$library" | awk '{ sub(/@.*/, "", $2); print $2 }' | LC_ALL=C sort))
if [[ $exported != "$called_inline" ]]; then
    echo "Private functions that are exported, or should be and are not (mark them with TARV_HIDDEN):"
    diff <(echo "$called_inline") <(echo "$exported") || exit 1
fi
