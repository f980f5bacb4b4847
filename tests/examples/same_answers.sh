#!/bin/bash
# The programs of examples/ and their counterparts in examples/comparison/ answer alike: the same output,
# and the same exit code. Messages differ.
#
#     same_answers.sh FOLDER
set -u

failures=0
comparisons=0

answer() { # PROGRAM ARGUMENT...
    "$@" 2>/dev/null </dev/null
    echo "[exit code $?]"
}

agree() { # EXIT_CODE NAME ARGUMENT...
    local exit_code=$1 name=$2 expected actual peer
    shift 2
    expected=$(answer "$folder/$name" "$@")
    if [[ $expected != *"[exit code $exit_code]" ]]; then
        printf 'FAIL: %s %s\n%s\n' "$name" "$*" "$expected"
        failures=$((failures + 1))
    fi
    for peer in "$folder/comparison/${name}"_with_*; do
        [[ -x $peer && -f $peer ]] || continue
        comparisons=$((comparisons + 1))
        actual=$(answer "$peer" "$@")
        if [[ $actual != "$expected" ]]; then
            printf 'FAIL: %s %s\nexpected: %s\nprinted:  %s\n' "$peer" "$*" "$expected" "$actual"
            failures=$((failures + 1))
        fi
    done
}

folder=$1
unset VCS_DIR VCS_JOBS CONVERT_QUALITY CONVERT_MEMORY CONVERT_JOBS

agree 0 vcs init
agree 0 vcs --git-dir=there init --bare
agree 0 vcs add a b -f
agree 0 vcs ci -m 'one, two' --amend
agree 0 vcs log -n 3 --oneline -v -v --decorate=full
agree 0 vcs push -b a,b -j 3 up
VCS_DIR=there VCS_JOBS=5 agree 0 vcs push --branch=a
agree 2 vcs
agree 2 vcs nonsense
agree 2 vcs add
agree 2 vcs commit
agree 2 vcs log --oneline --graph
agree 2 vcs log -n 0
agree 2 vcs log --decorate=loud
VCS_JOBS=99 agree 2 vcs push -b a

agree 0 convert a.png b.png
agree 0 convert a --to=webp --filter cubic -q 3 -w 3,4 --width=5 --gamma=0.5 -o out --title 'a,b'
agree 0 convert a --strip --overwrite --backup --memory=4MiB -j 8
CONVERT_QUALITY=7 CONVERT_JOBS=3 CONVERT_MEMORY=1k agree 0 convert a -j 4
agree 2 convert
agree 2 convert a --to=gif
agree 2 convert a -w 3,0
agree 2 convert a --gamma=11
agree 2 convert a --keep --strip
agree 2 convert a --backup
CONVERT_JOBS=many agree 2 convert a

agree 0 sort_lines
agree 0 sort_lines -rnk 2,3 -t, -S4k -T here -T there a b
agree 0 sort_lines -bdfi -msuz --debug --sort=version --key=4 --parallel=2 --batch-size=9 -o out
agree 2 sort_lines -nM
agree 2 sort_lines -n --sort=month
agree 2 sort_lines -k 3,2
agree 2 sort_lines -c -o out
agree 2 sort_lines --files0-from=list a
agree 2 sort_lines --batch-size=1

echo "$comparisons comparisons, $failures failures"
[[ $failures == 0 && $comparisons -eq 55 ]]
