#!/usr/bin/env bash
# Prints the names of LIST as Debian's list of symbols: each with the version that brought it, which is
# the one in the list KNOWN, or VERSION for a name that is not there yet.
#   debian_symbols.sh LIST KNOWN VERSION
set -euo pipefail
list=$1
known=$2
version=$3

grep -v '^ ' "$known"
awk -v version="$version" '
    NR == FNR { since[$1] = $2; next }
    {
        name = $2
        if (!sub(/@@/, "@", name)) {
            name = name "@" name
        }
        print " " name, name in since ? since[name] : version
    }' "$known" "$list" | LC_ALL=C sort
