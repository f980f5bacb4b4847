#!/bin/bash
# A manual page formats without a warning, and the program in it, if it has one, is SOURCE.
#
#     check_manual.sh PAGE [SOURCE]
set -u

status=0
mandoc -T lint -W warning "$1" || status=1
if [[ $# -ge 2 ]]; then
    sed -n '/^\.Bd -literal/,/^\.Ed/p' "$1" | sed '1d;$d;s/\\e/\\/g' | diff -u "$2" - || status=1
fi
exit $status
