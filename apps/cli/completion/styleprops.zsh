#compdef styleprops
# zsh completion for styleprops. The program itself knows what may be typed; this hands its answers to the shell.

_styleprops()
{
    local line word meaning program=$words[1]
    local -a ready open
    (( $+commands[$program] )) || [[ -x $program ]] || program=styleprops

    for line in "${(@f)$("$program" complete "${(@)words[2,CURRENT-1]}" "$PREFIX" 2>/dev/null)}"; do
        word=${line%%$'\t'*}
        meaning=${line#"$word"}
        case $line in
        '') ;;
        :folders) _files -/ ;;
        :files) _files ;;
        :drawings) _files -g '*.(fodg|odg|otg)(-.)' ;;
        # What goes on in the same word gets no blank behind it.
        *=|*:|*:$'\t'*) open+=("${word//:/\\:}:${meaning#$'\t'}") ;;
        *) ready+=("${word//:/\\:}:${meaning#$'\t'}") ;;
        esac
    done
    (( ! $#ready )) || _describe -V 'styleprops' ready
    (( ! $#open )) || _describe -V 'styleprops' open -S ''
}

_styleprops "$@"
