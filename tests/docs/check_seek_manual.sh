#!/bin/bash
# The manual page of seek names the same actions and options as its help.
#
#     check_seek_manual.sh PAGE SEEK
set -u

in_help() {
    "$2" --help | sed -n '/^  \(    \)\?-/{s/^ *//;s/=.*//;s/  .*//;p}' | tr -s ' ,' '\n' | sed 's/^-*//' | sort -u
}

in_page() {
    sed -n '/^\.It Fl /{s/^\.It Fl //;s/ Ns .*//;p}' "$1" | tr -s ' ,' '\n' | sed 's/^-*//' | sort -u
}

[[ $(in_help "$@" | wc -l) -gt 20 ]] && diff <(in_help "$@") <(in_page "$@")
