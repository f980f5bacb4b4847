#!/bin/bash
# check_page.sh accepts a right page, and refuses each of the wrong ones.
set -u

check=$(dirname "$0")/check_page.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/src/examples" "$work/bin"
printf 'int main() {\n    return 0;\n}\n' >"$work/src/examples/hello.cpp"
# The script sees its own "$1".
# shellcheck disable=SC2016
printf '#!/bin/sh\necho "hello $1"\nexit 3\n' >"$work/bin/hello"
chmod +x "$work/bin/hello"

fence='```'
source_block="\`examples/hello.cpp\`:

${fence}cpp
int main() {
    return 0;
}
$fence
"
session="${fence}console
\$ hello world
hello world
\$ echo \$?
3
\$ cat <<END
> text
> END
text
$fence
"

failures=0
expect() { # STATUS NAME PAGE
    printf '%s' "$3" >"$work/page.md"
    "$check" "$work/page.md" "$work/src" "$work/bin" examples >"$work/output" 2>&1
    local status=$?
    if [[ $status != "$1" ]]; then
        printf 'FAIL: %s: status %s instead of %s\n' "$2" "$status" "$1"
        cat "$work/output"
        failures=$((failures + 1))
    fi
}

expect 0 'a right page' "$source_block$session"
expect 0 'a piece of a file' "$source_block$session
From \`examples/hello.cpp\`:

${fence}cpp
    return 0;
$fence
"
conditional="${fence}console-if-hello
\$ hello moon
hello moon
$fence
"
expect 0 'a right session of a program that is there' "$source_block$session$conditional"
expect 0 'any session of a program that is not' "$source_block$session${conditional/if-hello/if-goodbye}"
expect 1 'a wrong session of a program that is there' "$source_block$session${conditional/hello moon/hello sun}"
on_path="${fence}console-if-cat
\$ echo moon | cat
moon
$fence
"
expect 0 'a right session of a program in PATH' "$source_block$session$on_path"
expect 1 'a wrong session of a program in PATH' "$source_block$session${on_path/echo moon/echo sun}"
expect 1 'a program shown otherwise than it is' "${source_block/return 0/return 1}$session"
expect 1 'a program cut short' "${source_block/$'}\n'/}$session"
expect 1 'a piece that the file does not hold' "$source_block$session
From \`examples/hello.cpp\`:

${fence}cpp
return 0;
$fence
"
expect 1 'a listing without a file name' "$source_block$session
${fence}cpp
int main() {
$fence
"
expect 1 'another output' "$source_block${session/$'\nhello world'/$'\nhello moon'}"
expect 1 'output left out' "$source_block${session/$'\nhello world'/}"
expect 1 'output too much' "$source_block${session/$'\ntext\n'/$'\ntext\nmore\n'}"
expect 1 'another exit code' "$source_block${session/$'\n3'/$'\n0'}"
expect 1 'a program that is not shown' "$session"
expect 1 'a program that is not run' "$source_block${session//hello world/echo}"
expect 1 'a page without sessions' "$source_block"
expect 1 'a block without an end' "$source_block$session${fence}console
\$ hello world
"

echo "$failures failures"
[[ $failures == 0 ]]
