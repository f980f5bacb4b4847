#!/bin/bash
# Every example program survives an argument that is empty, which has neither a text nor a value.
#
#     empty_argument.sh FOLDER
#
# Each line below is a program of FOLDER, its exit code and what it prints, "|" for a line end. A program
# that is built there and stands in no line is an error.
set -u

# The backquotes are a page's.
# shellcheck disable=SC2016
expected='
readme 2 readme: unexpected argument '"''"'|Try '"'readme --help'"'.|
tasks 2 tasks: unknown verb '"''"'|Try '"'tasks --help'"'.|
seek 2 seek: FILE '"''"': must be an existing file or directory|Try '"'seek --help'"'.|
vcs 2 vcs: unknown verb '"''"'|Try '"'vcs --help'"'.|
convert 0 to png, linear, quality 85, gamma 1, 1 jobs, 268435456 bytes|in '"'.', title ''"', widths|file '"''"'|
sort_lines 0 order text|buffer 0, batch 16, parallel 1|
plain/backup 0 writing to '"'backup'"' at level 6|
pages/manual 0 level 2|
pages/photo 0 image []|
pages/tryout 2 tryout: Unknown option: |
pages/backup 0 writing to '"'"'backup'"'"' at level 6|  .tar|
migration/with_tarv 0 level 2, quiet, output a.out|file |
cookbook/actions 2 actions: an action is missing|Try '"'"'actions --help'"'"'.|
cookbook/completers 0 call |
cookbook/copy 2 copy: argument TARGET is missing|Try '"'"'copy --help'"'"'.|
cookbook/count 2 count: unexpected argument '"''"'|Try '"'"'count --help'"'"'.|
cookbook/environment 2 environment: unknown verb '"''"'|Try '"'"'environment --help'"'"'.|
cookbook/exclusive 2 exclusive: unexpected argument '"''"'|Try '"'"'exclusive --help'"'"'.|
cookbook/help_topics 2 help_topics: unexpected argument '"''"'|Try '"'"'help_topics --help'"'"'.|
cookbook/lists 2 lists: unexpected argument '"''"'|Try '"'"'lists --help'"'"'.|
cookbook/negative 2 negative: unexpected argument '"''"'|Try '"'"'negative --help'"'"'.|
cookbook/own_types 2 own_types: unexpected argument '"''"'|Try '"'"'own_types --help'"'"'.|
cookbook/required 2 required: unexpected argument '"''"'|Try '"'"'required --help'"'"'.|
cookbook/typical_tool 0 pack  at level 2|write out.pack|
cookbook/wrapper 0 10 seconds: |
plain/between 0
plain/describing 0 | Option | Meaning ||| --- | --- ||| `--output` FILE | The file to write. Default: out.png ||| `--level` | How hard to try. One of 1, 2 ||| `--color` | Print in colour. ||
plain/exact_names 2 exact_names: Unknown option: |
plain/help_topics 2 help_topics: Unknown option: |
plain/many_results 2 many_results: Unknown option: |
plain/option_files 0
plain/own_values 2 own_values: Unknown option: |
plain/own_wording 2 own_wording: what is ?|
plain/rules 2 rules: Unknown option: |
plain/streams_for_tests 0 pass level=2|pass level=3 file=a.txt file=b.txt|pass level=5|pass level=2 file=name with blanks.txt|pass Value validation problem in argument '"'--level=high': Option 'level' can not parse 'high' value, requires a type 'integer'"' here.|
plain/suggestions 2 suggestions: Unknown option: |
plain/verbs 2 verbs: Unknown option: |
plain/veto 2 veto: Unknown option: |
'

cd "$1" || exit 1
failures=0
programs=0
for path in readme tasks seek vcs convert sort_lines pages/* migration/with_tarv cookbook/* plain/*; do
    [[ -f $path && -x $path ]] || continue
    programs=$((programs + 1))
    printed=$(LC_ALL=C ./"$path" "" </dev/null 2>&1 | tr '\n' '|'; exit "${PIPESTATUS[0]}")
    status=$?
    line="$path $status${printed:+ $printed}"
    if [[ $expected != *$'\n'"$line"$'\n'* ]]; then
        printf 'FAIL: %s\n' "$line"
        failures=$((failures + 1))
    fi
done

echo "$programs programs, $failures failures"
[[ $failures == 0 && $programs -ge 37 ]]
