# Completion of PROGRAM for bash 4.2 and later, version 1. Nothing that the program prints is evaluated.
_tarv_FUNCTION() {
    local IFS=$' \t\n' rest=${COMP_LINE:0:COMP_POINT} words=() out=() texts=() said=()
    local gap word line i program kept files head path common cut='' longest=0 width
    # Bash cuts words at the characters of COMP_WORDBREAKS, among them '=' and ':'. Mend them.
    for ((i = 0; i <= COMP_CWORD; i++)); do
        gap=${rest%%[![:space:]]*} word=${COMP_WORDS[i]}
        rest=${rest:${#gap}}
        ((i == COMP_CWORD)) && word=$rest
        rest=${rest:${#word}}
        if ((i == 0)) || [[ -n $gap ]]; then words+=("$word"); else words[${#words[@]} - 1]+=$word; fi
    done
    # Bash replaces "$2", the end of the word at the cursor, and keeps what stands before it. A word
    # behind a redirection is no argument.
    COMPREPLY=() i=$((${#words[@]} - 1)) kept=${words[i]%"$2"}
    program=$(type -P -- "${1/#\~\//$HOME/}") || program=$(type -P -- PROGRAM)
    if [[ -n $program && ! ${words[i]} =~ ^[0-9]*[\<\>] && ! ${words[i - 1]} =~ ^[0-9]*[\<\>\&\|]+$ ]]; then
        words[i]=$kept
        mapfile -t -n 100000 out < <(printf '%s\0' "${words[@]}" "$2" | "$program" tarvoption=complete=bash)
    fi
    [[ ${out[0]-} == 'tarv-complete 1 '* ]] || out=('tarv-complete 1 file' '' "$2")
    files=${out[0]##* } head=${out[1]-} path=${out[2]-} common=${out[3]-}
    if [[ $files == none ]]; then
        for line in "${out[@]:4}"; do
            word=${line%%$'\t'*} line=${line#*$'\t'}
            [[ $word == *[[:cntrl:]]* ]] || texts+=("$word") said+=("${line//[[:cntrl:]]/ }")
            ((longest = ${#word} > longest ? ${#word} : longest))
        done
    elif [[ -z $head && $path != ?*"$2" ]]; then
        if [[ $files == file ]]; then compopt -o default; else compopt -o dirnames; fi
    else
        # The file name begins elsewhere than what bash replaces.
        [[ -z $head ]] && cut=${path%"$2"}
        while IFS= read -r line; do
            word=${line#"$cut"}
            [[ $kept == *[\"\'] ]] || printf -v word %q "$word"
            [[ -d $line ]] && word+=/ && compopt -o nospace
            texts+=("$head$word")
        done < <(compgen -A "$files" -- "$path")
    fi
    if ((${#texts[@]} < 2)) || [[ $files != none || $COMP_TYPE == 37 || $COMP_TYPE == 42 ]]; then
        [[ ${texts[*]} == *= ]] && compopt -o nospace
        COMPREPLY=("${texts[@]}")
    elif [[ -n $common && $common != *[[:cntrl:]]* ]]; then
        compopt -o nospace
        # Bash closes an open quote behind a single one.
        if [[ $kept == *[\"\'] ]]; then COMPREPLY=("$common" "$common "); else COMPREPLY=("$common"); fi
    elif [[ $COMP_TYPE != 9 ]]; then
        # Nothing to insert: show them all. What they begin with must not be less than what was typed.
        ((width = ${COLUMNS:-80} - longest - 3, width = width > 9 ? width : 0))
        printf -v gap '%*s' "$longest" ''
        for i in "${!texts[@]}"; do
            [[ ${texts[i]} == "$2"* ]] || cut=' '
            word=${said[i]:0:width}
            COMPREPLY[i]=${texts[i]}${word:+${gap:${#texts[i]}}  $word}
        done
        COMPREPLY[0]=$cut${COMPREPLY[0]}
    fi
} 2>/dev/null
complete -o nosort -F _tarv_FUNCTION PROGRAM 2>/dev/null || complete -F _tarv_FUNCTION PROGRAM
