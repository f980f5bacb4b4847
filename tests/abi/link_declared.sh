#!/usr/bin/env bash
# Links a host against every function and variable that the headers declare without defining it, and runs it.
#   link_declared.sh COMPILER CLANG LIBRARY WORK HEADER...
set -euo pipefail
compiler=$1
clang=$2
library=$3
work=$4
shift 4
here=$(dirname "$0")
mkdir -p "$work"

"$here/declarations.py" declared "$clang" "$here/../../include" -- "$@" >"$work/names"
{
    awk '{ printf "extern \"C\" char name%d __asm__(\"%s\");\n", NR, $0 }' "$work/names"
    echo 'char* const names[] = {'
    awk '{ printf "    &name%d,\n", NR }' "$work/names"
    echo '};'
    echo 'int main() { for (char* name : names) if (name == nullptr) return 1; }'
} >"$work/host.cpp"
"$compiler" -std=c++17 "$work/host.cpp" "$library" -Wl,-rpath,"$(dirname "$library")" -o "$work/host"
"$work/host"
echo "$(wc -l <"$work/names") names link."
