#!/usr/bin/env bash
# The reference in the directory REFERENCE has a main page, and what hosts look up in it.
#   check_reference.sh REFERENCE
set -euo pipefail
reference=$1

status=0
for name in vtBool vtInt32 vtUInt32 vtInt64 vtUInt64 vtDouble vtString vtNull variant_t \
    set_assertion_handler assertion_handler_t createParser getLastValue noPosition flagRejectUnknown \
    parseOk parseFileUnreadable valueFound valueMissing \
    declarationStored declarationRefused; do
    page=$(grep -A 2 -E "<name>([a-z0-9_]+::)?$name</name>" "$reference/contents.xml" |
        sed -n -E 's#.*<(anchorfile|filename)>(.*)</.*#\2#p' | head -n 1) || true
    if [[ -z $page || ! -f $reference/html/$page ]]; then
        echo "The reference does not have $name."
        status=1
    fi
done

if ! grep -q 'int main(int argc, char\*\* argv)' <(sed 's/<[^>]*>//g' "$reference/html/index.html"); then
    echo "The main page does not show a program."
    status=1
fi
exit $status
