#!/bin/bash
# The check of committed descriptions notices a break, and lets a new version write the description anew.
#
#     check_committed_test.sh TARV FILES WORK
set -eu

tarv=$1
files=$2
work=$3
check=$(dirname "$0")/check_committed.sh
rm -rf "$work"
mkdir -p "$work"
cp "$files/pack-1.json" "$work/pack.json"
echo 1 >"$work/pack.json.version"

"$check" "$tarv" "$files/pack-1.json" "$work/pack.json" 1 >"$work/output"
if "$check" "$tarv" "$files/pack-2.json" "$work/pack.json" 1 >"$work/output"; then
    echo "A break was not noticed."
    exit 1
fi
grep -q 'pack --ver' "$work/output"
if "$check" "$tarv" "$files/pack-2.json" "$work/pack.json" 2 >"$work/output"; then
    echo "A new version without a new description was not noticed."
    exit 1
fi
TARV_UPDATE_DESCRIPTIONS=1 "$check" "$tarv" "$files/pack-2.json" "$work/pack.json" 2
"$check" "$tarv" "$files/pack-2.json" "$work/pack.json" 2 >"$work/output"
