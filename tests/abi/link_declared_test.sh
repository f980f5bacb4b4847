#!/usr/bin/env bash
# A declaration that nothing exported defines must be noticed, of whatever form; a definition must not.
#   link_declared_test.sh COMPILER CLANG LIBRARY WORK
set -euo pipefail
compiler=$1
clang=$2
library=$3
work=$4
here=$(dirname "$0")
mkdir -p "$work"

failed=0
# expect LINKS TEXT: whether a host links that uses all of a header with this text
expect() {
    printf '#include "tarv_3_3/tarv.h"\nnamespace tarv_3_3 {\n%s\n}\n' "$2" >"$work/added.h"
    local links=yes
    "$here/link_declared.sh" "$compiler" "$clang" "$library" "$work" "$work/added.h" >"$work/out" 2>&1 ||
        links=no
    if [[ $links != "$1" ]]; then
        printf '%s\nlinks: %s instead of %s\n' "$2" "$links" "$1"
        cat "$work/out"
        failed=1
    elif [[ $links == no ]] && ! grep -q 'undefined reference' "$work/out"; then
        cat "$work/out"
        failed=1
    fi
}

expect no 'int gone();'
expect no 'extern int gone;'
expect no 'struct S { void gone(); };'
expect no 'struct S { S(); };'
expect no 'struct S { ~S(); };'
expect no 'struct S { virtual void gone(); };'
expect no 'struct S { static int gone; };'
expect no 'class S { void gone() const; };'
expect no 'namespace internal { template <class T> int gone(); template <> int gone<int>(); }'
expect no 'template <class T> struct S { void gone(); }; extern template struct S<int>;'
expect yes 'inline int here() { return 1; }'
expect yes 'struct S { S() = default; S(const S&) = delete; virtual ~S() = default; virtual void pure() = 0; };'
expect yes 'template <class T> int unused(T); template <class T> struct U { void unused(); };'
expect yes 'inline int here = 1; constexpr int constant = 1;'
exit $failed
