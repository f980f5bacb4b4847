#!/usr/bin/env bash
# The comparison must see what breaks hosts. Alters the description and the list, and expects a refusal.
#   check_abi_test.sh WORK LIBRARY
set -euo pipefail
work=$1
library=$2
here=$(dirname "$0")
abi=$here/../../abi
mkdir -p "$work"

failed=0
# refuses NAME KIND EXPECTED ACTUAL ORIGINAL ALTERED
refuses() {
    if cmp -s "$5" "$6"; then
        echo "$1: nothing was altered"
        failed=1
    elif "$here/check_abi.sh" "$2" "$3" "$4" >"$work/out"; then
        echo "$1: not noticed"
        failed=1
    elif ! grep -q 'run tools/update-abi' "$work/out"; then
        echo "$1: does not say how to update"
        failed=1
    fi
}

altered_description() {
    sed "$2" "$abi/libtarv.abi" >"$work/altered.abi"
    refuses "$1" description "$abi/libtarv.abi" "$work/altered.abi" "$abi/libtarv.abi" "$work/altered.abi"
}

altered_list() {
    sed "$2" "$abi/libtarv.symbols" >"$work/altered.symbols"
    refuses "$1" symbols "$work/altered.symbols" "$library" "$abi/libtarv.symbols" "$work/altered.symbols"
}

altered_debian_list() {
    sed "$2" "$abi/debian.symbols" >"$work/altered.debian"
    refuses "$1" debian "$work/altered.debian" "$abi/libtarv.symbols" "$abi/debian.symbols" "$work/altered.debian"
}

altered_description "a larger Value" "/class-decl name='Value'/s/size-in-bits='256'/size-in-bits='320'/"
altered_description "another number of a kind" "s/name='vtInt32' value='6'/name='vtInt32' value='5'/"
altered_description "virtual functions in another order" \
    "s/vtable-offset='5'/vtable-offset='x'/; s/vtable-offset='6'/vtable-offset='5'/; s/vtable-offset='x'/vtable-offset='6'/"
# altered_class NAME CLASS COMMAND: the command for sed alters the description of a class
altered_class() {
    altered_description "$1" "/class-decl name='$2' size/,/<\/class-decl>/{$3}"
}
altered_class "a larger record of the typed face" Step "s/size-in-bits='384'/size-in-bits='448'/"
altered_class "a field elsewhere in what hosts of the typed face make" Shape \
    "s/layout-offset-in-bits='768'/layout-offset-in-bits='800'/"
altered_class "two fields of Candidate swapped" Candidate \
    "s/name='text'/name='x'/; s/name='description'/name='text'/; s/name='x'/name='description'/"
altered_class "a field elsewhere in Declaration" Declaration \
    "s/layout-offset-in-bits='832'/layout-offset-in-bits='864'/"
altered_class "a field elsewhere in ExplainedArgument" ExplainedArgument \
    "s/layout-offset-in-bits='448'/layout-offset-in-bits='480'/"
altered_class "the function of CandidateSink at another place" CandidateSink \
    "s/vtable-offset='0'/vtable-offset='1'/"
altered_list "a function that is no longer there" '1i T _ZN8tarv_3_34goneEv@@TARV_3.3'
altered_list "a new function" '/12createParserE/d'
altered_list "another version" '/12createParserE/s/@@TARV_3.3/@@TARV_3.4/'
altered_debian_list "a name that Debian's list lacks" '/12createParserE/d'
altered_debian_list "a name that only Debian's list has" '3i\ _ZN8tarv_3_34goneEv@TARV_3.3 3.3.0'
exit $failed
