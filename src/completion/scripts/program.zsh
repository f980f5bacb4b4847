#compdef PROGRAM
# Completion of PROGRAM for zsh 5, version 1. Nothing that the program prints is evaluated.
_tarv_FUNCTION() {
    local program files head line text word="$QIPREFIX$PREFIX${compstate[quote]#\$}"
    local -a out texts said open openSaid how
    integer n=0 longest=0
    program=$(whence -p -- "${${(Q)words[1]}/#\~\//$HOME/}") || program=$(whence -p -- PROGRAM)
    [[ -n $program ]] && out=("${(@f)$(printf '%s\0' "${(@Q)words[1,CURRENT-1]}" "${(Q)word}" |
        "$program" tarvoption=complete=zsh 2>/dev/null)}")
    [[ $out[1] == 'tarv-complete 1 '* ]] || { _default; return }
    files=${out[1]##* } head=$out[2]
    if [[ $files != none ]]; then
        # What stands before the file name may have been typed with quotes.
        while (( n < $#PREFIX )) && [[ ${(Q)PREFIX[1,n]} != "$head" ]]; do (( n += 1 )); done
        compset -p $n
        if [[ $files == directory ]]; then _path_files -/; else _files; fi
        return
    fi
    for line in "${(@)out[5,-1]}"; do
        text=${line%%$'\t'*}
        (( $#text > longest )) && longest=$#text
    done
    for line in "${(@)out[5,-1]}"; do
        text=${line%%$'\t'*} line=${${line#*$'\t'}//[[:cntrl:]]/ }
        [[ $text == *[[:cntrl:]]* ]] && continue
        [[ -n $line ]] && how=(-l)
        line=${(r:longest:)text}${line:+"  -- $line"}
        if [[ $text == *= ]]; then
            open+=("$text") openSaid+=("$line")
        else
            texts+=("$text") said+=("$line")
        fi
    done
    # Each word of a name may be cut short.
    how+=(-V tarv -M 'r:|-=* r:|=*')
    (( $#texts )) && compadd $how -d said -a texts
    (( $#open )) && compadd $how -S '' -d openSaid -a open
    (( $#texts + $#open ))
}
if [[ $zsh_eval_context[-1] == *func ]]; then _tarv_FUNCTION "$@"; else compdef _tarv_FUNCTION PROGRAM; fi
