#!/bin/bash
# Runs each of the programs given on the same command lines: where the libraries agree, so do they.
set -u

failures=0

expect() { # EXPECTED ARGUMENT...
    local expected=$1 program actual
    shift
    for program in "${programs[@]}"; do
        actual=$("$program" "$@" 2>/dev/null)
        actual+=" [exit code $?]"
        if [[ $actual != "$expected" ]]; then
            printf 'FAIL: %s %s\nexpected: %s\nprinted:  %s\n' "$program" "$*" "$expected" "$actual"
            failures=$((failures + 1))
        fi
    done
}

programs=("$@")
for program in "${programs[@]}"; do
    [[ -x $program ]] || { echo "no program $program"; exit 1; }
done

expect 'level 2, quiet, output a.out [exit code 0]'
expect 'level 9, verbose, output x.o
file a.c
file b.c [exit code 0]' -l 9 --verbose a.c --output=x.o b.c
expect 'level 2, quiet, output a.out
include inc
include src/inc,old
file a.c [exit code 0]' --include inc -i src/inc,old a.c
expect 'level 2, verbose, output a.out
file -d.c
file a,b.c [exit code 0]' -v -- -d.c a,b.c
expect 'level -3, quiet, output a.out [exit code 0]' --level=-3
expect ' [exit code 2]' --level=high
expect ' [exit code 2]' --nonsense
expect ' [exit code 2]' --output

echo "${#programs[@]} programs, $failures failures"
[[ $failures == 0 && ${#programs[@]} -ge 2 ]]
