#!/usr/bin/env bash
# Builds the Debian packages, has lintian check them, looks at what they say about themselves, installs
# them, builds a host against what is then in the system, runs it, and removes the packages. Needs root.
set -euo pipefail
cd "$(dirname "$0")/../.."

work=build/deb-host
rm -rf build/deb "$work"
cmake --preset deb "$@"
cmake --build --preset deb --parallel "$(nproc)"
(cd build/deb && cpack)

packages=(build/deb/*.deb)
if [[ ${#packages[@]} -ne 3 ]]; then
    echo "Expected three packages: ${packages[*]}" >&2
    exit 1
fi
lintian --allow-root --display-info --fail-on error,warning,info "${packages[@]}"

# expect WHAT EXPECTED ACTUAL
expect() {
    if [[ $3 != "$2" ]]; then
        printf '%s:\n%s\nexpected:\n%s\n' "$1" "$3" "$2" >&2
        exit 1
    fi
}

home=$(sed -n 's/^ *HOMEPAGE_URL //p' CMakeLists.txt)
runtime=(build/deb/libtarv3.3_*.deb)
development=(build/deb/libtarv-dev_*.deb)
program=(build/deb/tarv_*.deb)
expect "Fields of ${runtime[0]}" $'Multi-Arch: same\nHomepage: '"$home" \
    "$(dpkg-deb --field "${runtime[0]}" Multi-Arch Homepage)"
expect "Fields of ${development[0]}" \
    $'Multi-Arch: same\nDepends: libtarv3.3 (= 3.3.0)\nRecommends: tarv\nHomepage: '"$home" \
    "$(dpkg-deb --field "${development[0]}" Multi-Arch Depends Recommends Homepage)"
expect "Fields of ${program[0]}" $'Multi-Arch: foreign\nSection: devel\nSuggests: shfmt\nHomepage: '"$home" \
    "$(dpkg-deb --field "${program[0]}" Multi-Arch Section Suggests Homepage)"
expect "Dependency of ${program[0]}" "libtarv3.3 (>= 3.3.0)" \
    "$(dpkg-deb --field "${program[0]}" Depends | grep -o 'libtarv[^,]*')"
# Packages of several architectures are installed beside each other: what is not the same in all of them
# lies in the folder of its architecture.
expect "Files of ${development[0]} and ${runtime[0]} in other folders" "" \
    "$(for package in "${development[0]}" "${runtime[0]}"; do
        dpkg-deb --fsys-tarfile "$package" | tar --list |
            grep -v '/$' | grep -vE '^\./usr/(include|share|lib/x86_64-linux-gnu)/' || true
    done)"
expect "Files of ${program[0]}" $'./usr/bin/tarv
./usr/share/bash-completion/completions/tarv
./usr/share/doc/tarv/changelog.gz
./usr/share/doc/tarv/copyright
./usr/share/fish/vendor_completions.d/tarv.fish
./usr/share/man/man1/tarv.1.gz
./usr/share/tarv/cmake/tarvProgramTargets-release.cmake
./usr/share/tarv/cmake/tarvProgramTargets.cmake
./usr/share/zsh/vendor-completions/_tarv' \
    "$(dpkg-deb --fsys-tarfile "${program[0]}" | tar --list | grep -v '/$' | LC_ALL=C sort)"
expect "Control files of ${runtime[0]}" $'control\nmd5sums\nshlibs\nsymbols\ntriggers' \
    "$(dpkg-deb --ctrl-tarfile "${runtime[0]}" | tar --list | sed 's|^\./||' | sed '/^$/d' | LC_ALL=C sort)"
expect "Symbols of ${runtime[0]}" "$(<abi/debian.symbols)" "$(dpkg-deb --info "${runtime[0]}" symbols)"
mkdir -p "$work"
dpkg-deb --fsys-tarfile "${runtime[0]}" | tar --extract --to-stdout --wildcards '*/libtarv.so.3.3.*' >"$work/library"
# The other hardening flags are lintian's to miss.
if ! readelf --wide --dyn-syms "$work/library" | grep __stack_chk_fail >/dev/null; then
    echo "The library was built without -fstack-protector-strong." >&2
    exit 1
fi

# Another process may be installing something.
apt=(apt-get -o DPkg::Lock::Timeout=600 -y)
trap '"${apt[@]}" purge tarv libtarv-dev libtarv3.3' EXIT
"${apt[@]}" install --no-install-recommends "./${runtime[0]}" "./${development[0]}"

# Neither host knows any path, and neither needs the program.
cmake -D project=find_package -D work="$PWD/$work/cmake" -P tests/consumer/cmakeHost.cmake
expect "Flags of pkg-config" "-ltarv" "$(pkg-config --cflags --libs tarv | sed 's| *$||')"
# The flags are split at their blanks on purpose.
# shellcheck disable=SC2046
g++ -std=c++17 tests/consumer/host.cpp $(pkg-config --cflags --libs "tarv >= 3.3") -o "$work/host"
expect "Output of the host" $'Hello, World!\nHello, World!\n2 values' \
    "$("$work/host" --name=World --times=2)"

generate() {
    cmake -D work="$PWD/$work/generate" "$@" -P tests/consumer/generateHost.cmake
}
generate -D program=missing
"${apt[@]}" install "./${program[0]}"
expect "Version of the program" "tarv 3.3.0" "$(tarv --version)"
generate

# What a package of the host would depend on.
mkdir "$work/debian"
printf 'Source: host\n\nPackage: host\nArchitecture: any\n' >"$work/debian/control"
expect "Dependency of the host" "libtarv3.3 (>= 3.3.0)" \
    "$(cd "$work" && dpkg-shlibdeps -O host | grep -o 'libtarv[^,]*')"

trap - EXIT
"${apt[@]}" purge tarv libtarv-dev libtarv3.3
left=$(find /usr/include/tarv_3_3 /usr/lib/x86_64-linux-gnu/libtarv* /usr/bin/tarv /usr/share/tarv 2>/dev/null || true)
if [[ -n $left ]]; then
    printf 'Left behind:\n%s\n' "$left" >&2
    exit 1
fi
echo "The Debian packages install, work and go."
