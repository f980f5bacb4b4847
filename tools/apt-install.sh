#!/usr/bin/env bash
# Installs what is missing of the named groups of Debian packages:
#   build      what a build of the library, the companion program and the examples needs
#   test       what the tests need besides
#   ci         what only .ci/run needs besides
#   coverage   what tools/coverage.sh needs besides the tests
#   benchmark  what the benchmarks need besides a build
#   peers      the libraries that the benchmarks compare with
set -euo pipefail

declare -A groups=(
    [build]="g++ cmake ninja-build nlohmann-json3-dev"
    [test]="abigail-tools bash-completion clang doxygen fish googletest libboost-program-options-dev
        libclang-rt-14-dev libcli11-dev libcxxopts-dev libgtest-dev man-db mandoc pkg-config python3
        python3-jsonschema shfmt valgrind zsh"
    [ci]="ccache clang-format clang-tidy cppcheck dpkg-dev file lintian shellcheck"
    [coverage]="gcovr"
    [benchmark]="git gnuplot-nox libbenchmark-dev python3 time valgrind"
    [peers]="libabsl-dev libargtable2-dev libboost-program-options-dev libcli11-dev libcxxopts-dev
        libgflags-dev libpopt-dev libtclap-dev llvm-14-dev"
)

wanted=()
for group in "$@"; do
    # The lists are split at their blanks on purpose.
    # shellcheck disable=SC2206
    wanted+=(${groups[$group]})
done

missing=()
for package in "${wanted[@]}"; do
    status=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
    if [[ $status != installed ]]; then
        missing+=("$package")
    fi
done
if [[ ${#missing[@]} -eq 0 ]]; then
    exit 0
fi

as_root=()
if [[ $(id -u) -ne 0 ]]; then
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"

# Somebody else may be installing: `install` waits for that itself, `update` does not.
readonly lock_seconds=600
update() {
    local output
    until output=$("${as_root[@]}" env LC_ALL=C apt-get update -qq 2>&1); do
        if [[ $output != *"Could not get lock"* || $SECONDS -ge $lock_seconds ]]; then
            echo "$output" >&2
            return 1
        fi
        sleep 5
    done
}
update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -o DPkg::Lock::Timeout=$lock_seconds install -y -qq --no-install-recommends "${missing[@]}"
