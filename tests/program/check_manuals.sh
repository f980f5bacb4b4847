#!/bin/bash
# The manual pages that tarv writes are without fault to mandoc and to groff.
#
#     check_manuals.sh TARV FOLDER DESCRIPTION...
set -u

tarv=$1
folder=$2
shift 2
rm -rf "$folder"
status=0
for description in "$@"; do
    pages=$folder/$(basename "$description")
    mkdir -p "$pages/each"
    "$tarv" man "$description" --date=2026-11-22 --purpose="Does something." >"$pages/whole.1" || status=1
    "$tarv" man "$description" --date=2026-11-22 --purpose="Does something." --directory="$pages/each" || status=1
    for page in "$pages"/whole.1 "$pages"/each/*; do
        complaints=$(mandoc -T lint "$page" 2>&1; MANROFFSEQ='' LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 "$page" 2>&1 >/dev/null)
        if [[ -n $complaints ]]; then
            printf '%s:\n%s\n' "$page" "$complaints"
            status=1
        fi
    done
done
exit $status
