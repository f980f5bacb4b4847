#!/usr/bin/env bash
# Compares the binary interface with the checked-in one. Ends with 1 when they differ.
#   check_abi.sh symbols LIST LIBRARY
#   check_abi.sh description DESCRIPTION OTHER-DESCRIPTION
#   check_abi.sh debian DEBIAN-LIST LIST
set -euo pipefail
here=$(dirname "$0")
what=$1
expected=$2
actual=$3

case $what in
symbols)
    difference=$(diff "$expected" <("$here/exported_symbols.sh" "$actual")) && exit 0
    ;;
debian)
    difference=$(diff "$expected" <("$here/debian_symbols.sh" "$actual" "$expected" new)) && exit 0
    ;;
description)
    difference=$(abidiff --harmless "$expected" "$actual") && exit 0
    ;;
*)
    sed -n '2,5s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac

cat <<END
$difference

The binary interface is not the one in $expected.
If that is meant, and docs/versioning.md allows it in this version, run tools/update-abi and commit
what it writes.
END
exit 1
