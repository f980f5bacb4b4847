#!/usr/bin/env bash
# Runs what README.md says about installing, uninstalling and the reference, on a copy of the sources and
# with a directory of its own for the root of the system.
#   readmeInstall.sh WORK
# WORK is deleted first.
set -euo pipefail
work=$1
root=$(realpath "$(dirname "$0")/../..")

if [[ -e $work/.git ]]; then
    echo "$work holds a repository, and would be deleted" >&2
    exit 1
fi
rm -rf "$work"
mkdir -p "$work/sources"
cp -r "$root"/{CMakeLists.txt,CMakePresets.json,LICENSE,README.md,cmake,docs,examples,include,program,share,src} "$work/sources"
cd "$work/sources"
export DESTDIR=$work/system

mapfile -t commands < <(grep -E '^ {4}.*(preset install|build/install)' README.md)
if [[ ${#commands[@]} -ne 4 ]]; then
    echo "Expected to build, to install, to uninstall and to make the reference: ${commands[*]}" >&2
    exit 1
fi
sudo() {
    "$@"
}
# Found by what the commands say.
# shellcheck disable=SC2317
ldconfig() {
    :
}

# expect WHAT EXPECTED ACTUAL
expect() {
    if [[ $3 != "$2" ]]; then
        printf '%s:\n%s\nexpected:\n%s\n' "$1" "$3" "$2" >&2
        exit 1
    fi
}

eval "${commands[0]}"
expect "Libraries and programs in the build" \
    $'build/install/program/libtarv_program_parts.a\nbuild/install/program/tarv\nbuild/install/src/libtarv.so.3.3.0' \
    "$(find build/install -name CMakeFiles -prune -o -type f \( -executable -o -name '*.a' \) -print | LC_ALL=C sort)"

eval "${commands[1]}"
config=$(find "$DESTDIR" -name tarv.pc)
flags=$(PKG_CONFIG_PATH=$(dirname "$config") pkg-config --cflags --libs tarv)
# The flags are split at their blanks on purpose.
# shellcheck disable=SC2086
g++ -std=c++17 "$root/tests/consumer/host.cpp" $flags -o "$work/host"
library=$(dirname "$(find "$DESTDIR" -name libtarv.so)")
expect "Output of the host" $'Hello, Ann!\n1 values' "$(LD_LIBRARY_PATH=$library "$work/host" --name=Ann)"

# What somebody else has put beside the library stays.
touch "$DESTDIR/usr/local/include/dovel2/other.h" "$library/libother.so"
eval "${commands[2]}"
expect "Files left by uninstalling" \
    "$(printf '%s\n' "$DESTDIR/usr/local/include/dovel2/other.h" "$library/libother.so" | LC_ALL=C sort)" \
    "$(find "$DESTDIR" -not -type d | LC_ALL=C sort)"
expect "Folders left by uninstalling" "" \
    "$(find "$DESTDIR" -type d \( -name 'tarv*' -o -name 'mero*' \))"

eval "${commands[3]}"
page=$(grep -o 'build/install/docs/[^`]*' README.md)
if [[ ! -f $page ]]; then
    echo "There is no $page." >&2
    exit 1
fi
echo "What README.md says about installing is so."
