#!/bin/bash
# Compares a page of the documentation with the programs that it shows.
#
#     check_page.sh PAGE SOURCE_DIR BIN_DIR [FOLDER]
#
# - A ```cpp block shows a source. The last line before it names the file, relative to SOURCE_DIR:
#   "`path`:" for the whole file, "From `path`:" for a piece of it.
# - A ```console block is a session: lines that begin with "$ " are commands ("> " goes on with one),
#   all others are what the commands print, standard error included. Each session runs in an empty
#   folder, with the programs of BIN_DIR at hand. A ```console-if-NAME session runs only where there
#   is a program NAME; the last line of the report counts the sessions left out.
# - With FOLDER, every program in it must be shown whole, and run in some session.
set -u

page=$1
source_dir=$2
bin_dir=$(cd "$3" && pwd) || exit 1
folder=${4:-}

failures=0
left_out=0
shown=()
commands=()

fail() {
    printf '%s: %s\n' "$page" "$*" >&2
    failures=$((failures + 1))
}

check_source() { # LINE_NUMBER INTRODUCTION BLOCK
    # The backquotes are those of Markdown.
    # shellcheck disable=SC2016
    local whole='^`([^`]+)`:$' piece='^From `([^`]+)`:$' path
    if [[ $2 =~ $whole ]]; then
        path=${BASH_REMATCH[1]}
        shown+=("$path")
        diff -u "$source_dir/$path" <(printf '%s' "$3") >&2 || fail "line $1: not what $path holds"
    elif [[ $2 =~ $piece ]]; then
        path=${BASH_REMATCH[1]}
        [[ $'\n'$(<"$source_dir/$path")$'\n' == *$'\n'"$3"* ]] || fail "line $1: no such piece in $path"
    else
        fail "line $1: the line before a listing must name its file, not say '$2'"
    fi
}

# Runs the commands in one shell, and repeats each before it runs.
run_session() { # SESSION -> transcript on standard output
    local line script='status=0' command='' echoed=''
    while IFS= read -r line; do
        case $line in
        '$ '*)
            [[ -n $command ]] && script+=$'\n'"$echoed(exit \$status)"$'\n'"$command"$'\nstatus=$?'
            command=${line:2}
            echoed="printf '%s\\n' ${line@Q}; "
            ;;
        '> '*)
            command+=$'\n'${line:2}
            echoed+="printf '%s\\n' ${line@Q}; "
            ;;
        esac
    done <<<"$1"
    script+=$'\n'"$echoed(exit \$status)"$'\n'"$command"
    (cd "$scratch" && PATH=$bin_dir:$PATH LC_ALL=C.UTF-8 timeout 60 bash -c "$script" 2>&1 </dev/null)
}

check_session() { # LINE_NUMBER SESSION
    local line scratch
    [[ $2 == '$ '* ]] || fail "line $1: a session begins with a command"
    while IFS= read -r line; do
        [[ $line == '$ '* ]] && commands+=("${line:2}")
    done <<<"$2"
    scratch=$(mktemp -d)
    diff -u --label "the page" --label "what happens" <(printf '%s' "$2") <(run_session "$2") >&2 ||
        fail "line $1: the session goes otherwise"
    rm -rf "$scratch"
}

number=0
kind=
introduction=
while IFS= read -r line || [[ -n $line ]]; do
    number=$((number + 1))
    if [[ -z $kind && $line == '```'* ]]; then
        kind=${line#'```'}
        kind=${kind:-text}
        start=$number
        block=
    elif [[ $line == '```' ]]; then
        case $kind in
        cpp) check_source "$start" "$introduction" "$block" ;;
        console) check_session "$start" "$block" ;;
        console-if-*)
            if (PATH=$bin_dir:$PATH && type -P "${kind#console-if-}" >/dev/null); then
                check_session "$start" "$block"
            else
                left_out=$((left_out + 1))
                commands+=("${kind#console-if-}")
            fi
            ;;
        esac
        kind=
    elif [[ -n $kind ]]; then
        block+=$line$'\n'
    elif [[ -n $line ]]; then
        introduction=$line
    fi
done <"$page"
[[ -z $kind ]] || fail "line $start: a block without an end"

if [[ -n $folder ]]; then
    for file in "$source_dir/$folder"/*.cpp; do
        name=$(basename "$file" .cpp)
        [[ " ${shown[*]-} " == *" $folder/$name.cpp "* ]] || fail "$folder/$name.cpp is not shown"
        printf '%s\n' "${commands[@]-}" | grep -Eq "(^|[ |;&])$name([ |;&]|\$)" || fail "$name is not run"
    done
fi

echo "$page: ${#shown[@]} programs shown, ${#commands[@]} commands," \
    "$left_out sessions left out, $failures failures"
[[ $failures == 0 && ${#commands[@]} != 0 ]]
