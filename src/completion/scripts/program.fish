# Completion of PROGRAM for fish 3, version 1. Nothing that the program prints is evaluated.
function __tarv_FUNCTION
    set -l words (commandline -opc)
    set -l token (commandline -ct)
    # The word at the cursor may end within quotes.
    set -l word (string unescape -- "$token"; or string unescape -- "$token\""
        or string unescape -- "$token'"; or string join '' -- $token)
    set -l program (string replace -r '^~/' "$HOME/" -- $words[1])
    set program (command -s -- $program; or command -s -- PROGRAM)
    set -l out
    if set -q program[1]
        set out (printf '%s\0' $words "$word" | $program tarvoption=complete=fish 2>/dev/null)
    end
    string match -q 'tarv-complete 1 *' -- $out[1]; or set out 'tarv-complete 1 file' '' ''
    # Fish knows files by words as they were typed.
    test -z "$out[2]"; and set -l path $token; or set -l path (string escape -- $out[3])
    switch "$out[1]"
        case 'tarv-complete 1 none'
            # Tabulators stand before descriptions.
            string replace -ra '[^\P{Cc}\t]' ' ' -- $out[5..-1]
        case 'tarv-complete 1 directory'
            string join \n -- $out[2](complete -C "'' $path" | string match '*/')
        case '*'
            string join \n -- $out[2](complete -C "'' $path")
    end
end
complete -c PROGRAM -f -k -a '(__tarv_FUNCTION)'
