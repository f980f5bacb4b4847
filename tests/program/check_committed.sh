#!/bin/bash
# A program's command line is compatible with the description of it that is committed, unless its version has
# changed since. With TARV_UPDATE_DESCRIPTIONS set in the environment, the description is written instead: do
# that with a new version.
#
#     check_committed.sh TARV PROGRAM DESCRIPTION VERSION
# The first line of DESCRIPTION.version is the version that the description is of.
set -eu

tarv=$1
program=$2
description=$3
version=$4

if [[ -n ${TARV_UPDATE_DESCRIPTIONS:-} ]]; then
    "$tarv" json "$program" >"$description"
    echo "$version" >"$description.version"
    exit
fi
if [[ $(<"$description.version") != "$version" ]]; then
    echo "The committed description is of version $(<"$description.version"), this is $version: write it anew."
    exit 1
fi
"$tarv" compare "$description" "$program"
