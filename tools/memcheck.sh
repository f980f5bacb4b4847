#!/usr/bin/env bash
# Runs the suites of tests under valgrind. Fails when one accesses memory that it must not, decides on
# a value that nobody set, or leaves a block behind that nothing points to; and when a test fails.
#   tools/memcheck.sh [PRESET]
# PRESET is "release" when not given; "debug" names the lines of what is found, and takes longer.
# TARV_TEST_PERCENT in the environment says how many of their rounds random tests make; most of the time goes
# there.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-release}
build=$PWD/build/$preset
suites=(reliability options help parser platform recognition result reading description completion typed
    typedInternal api)

tools/apt-install.sh build test
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --parallel "$(nproc)" --target "${suites[@]/%/_tests}"

# Runs the tests of a suite that FILTER selects.
#   check SUITE FILTER [VALGRIND-OPTION...]
check() {
    local suite=$1 filter=$2 report
    shift 2
    report=$(mktemp)
    # Death tests end in a child process, which leaves everything behind.
    if (cd tests && valgrind --quiet --leak-check=full --show-leak-kinds=definite \
        --errors-for-leak-kinds=definite --error-exitcode=99 --child-silent-after-fork=yes "$@" \
        "$build/tests/${suite}_tests" --gtest_brief=1 --gtest_filter="$filter") >"$report" 2>&1; then
        # A filter that selects nothing, or leaves nothing, finds nothing.
        if grep -q ' 0 tests from ' "$report"; then
            echo "$suite: NO TESTS with the filter $filter"
            rm "$report"
            return 1
        fi
        echo "$suite: $(sed -n 's/^\[=*\] \(.* ran\).*/\1/p' "$report"), no errors"
        rm "$report"
    else
        printf '%s: FAILED with the filter %s\n%s\n' "$suite" "$filter" "$(cat "$report")"
        rm "$report"
        return 1
    fi
}
export -f check
export build

# These let allocations fail, in functions of their own that valgrind must not replace by its own. It
# then knows nothing of the blocks, but of the stack and of values that nobody set; the tests count
# blocks themselves.
failing='*AllocationFailure*:*WhicheverAllocationFails:*WhenMemoryRunsOut:TypedMemory.*:Arena.*:ArenaAllocator.*:MemoryOfLists.*'
suites_with_failures=(platform result help completion typed reliability)
own_functions=--soname-synonyms=somalloc=nouserintercepts
{
    for suite in "${suites[@]}"; do
        echo "$suite -$failing"
    done
    for suite in "${suites_with_failures[@]}"; do
        echo "$suite $failing $own_functions"
    done
} | xargs -P "$(nproc)" -L 1 bash -c 'check "$@"' check
