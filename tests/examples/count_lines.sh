#!/bin/bash
# Counts the lines of the programs in examples/ and of their counterparts in examples/comparison/, without
# blank ones and comments, and compares them with a bound: at most PERCENT of the lines of CLI11's.
#
#     count_lines.sh FOLDER
set -u

count() { # FILE
    grep -vcE '^[[:space:]]*(//.*)?$' "$1"
}

failures=0
printf '%-12s %5s %6s %8s\n' program tarv CLI11 cxxopts
for row in 'vcs 60' 'convert 60' 'sort_lines 100'; do
    read -r name percent <<<"$row"
    ours=$(count "$1/$name.cpp") || exit 1
    theirs=$(count "$1/comparison/${name}_with_cli11.cpp") || exit 1
    others=-
    [[ $name == vcs ]] || others=$(count "$1/comparison/${name}_with_cxxopts.cpp") || exit 1
    printf '%-12s %5s %6s %8s\n' "$name" "$ours" "$theirs" "$others"
    if ((ours * 100 > theirs * percent)); then
        printf 'FAIL: %s has more than %s %% of the lines\n' "$name" "$percent"
        failures=$((failures + 1))
    fi
done
[[ $failures == 0 ]]
