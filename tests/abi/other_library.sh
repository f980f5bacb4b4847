#!/usr/bin/env bash
# Builds a host against the installed library, then runs the same file with another build of the
# library: by another compiler, with larger hidden objects and one more function. So do the hosts of an
# earlier time.
#   other_library.sh PREFIX COMPILER OTHER-COMPILER GENERATED WORK
# GENERATED is where the build has made sources.
set -euo pipefail
prefix=$1
compiler=$2
other_compiler=$3
generated=$4
work=$5
root=$(realpath "$(dirname "$0")/../..")

rm -rf "$work"
mkdir -p "$work/lib"
libraries=$(dirname "$(find "$prefix" -name libtarv.so.3.3)")
"$compiler" -std=c++17 -O2 -I "$prefix/include" "$root/tests/consumer/host.cpp" \
    -L "$libraries" -ltarv -o "$work/host"

cp -r "$root/src" "$root/include" "$work"
for class in parser/BasicParser result/ParseResult; do
    sed -i '0,/^};/s//    long oneMore[8] = {1, 2, 3, 4, 5, 6, 7, 8};\n};/' "$work/src/$class.h"
    if cmp -s "$root/src/$class.h" "$work/src/$class.h"; then
        echo "$class.h: nothing was added" >&2
        exit 1
    fi
done
cat >"$work/src/added.cpp" <<'END'
namespace tarv_3_3 {
__attribute__((visibility("default"))) int addedLater() {
    return 1;
}
} // namespace tarv_3_3
END
"$other_compiler" -std=c++17 -O0 -shared -fPIC -fvisibility=hidden -I "$work/include" -I "$work/src" -I "$generated" \
    "$work"/src/*/*.cpp "$work/src/added.cpp" \
    -Wl,-soname,libtarv.so.3.3 -Wl,--version-script="$root/cmake/tarv.map" -o "$work/lib/libtarv.so.3.3"
nm --dynamic --defined-only "$work/lib/libtarv.so.3.3" | grep ' _ZN8tarv_3_310addedLaterEv' >/dev/null

if [[ $(uname -m) == x86_64 ]]; then
    for host in host typedHost; do
        "$root/tests/abi/oldHost/run.sh" "$root/tests/abi/oldHost/$host-x86_64" "$work/lib/libtarv.so.3.3"
    done
fi

expected='Hello, Ann!
Hello, Ann!
2 values'
for directory in "$libraries" "$work/lib"; do
    loaded=$(LD_LIBRARY_PATH=$directory ldd "$work/host" | sed -n 's/.*libtarv.so.3.3 => \(.*\) (.*/\1/p')
    if [[ $loaded != "$directory/libtarv.so.3.3" ]]; then
        echo "$directory: the host loads $loaded" >&2
        exit 1
    fi
    printed=$(LD_LIBRARY_PATH=$directory "$work/host" --name=Ann --times=2)
    if [[ $printed != "$expected" ]]; then
        printf '%s: the host prints\n%s\n' "$directory" "$printed" >&2
        exit 1
    fi
done
