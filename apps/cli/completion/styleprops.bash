# bash completion for styleprops. The program itself knows what may be typed; this hands its answers to the shell.

_styleprops()
{
    local cur=${COMP_WORDS[COMP_CWORD]} cword=$COMP_CWORD
    local -a words=("${COMP_WORDS[@]}")
    # The shell splits words at signs that belong to rows and selectors; bash-completion puts them together again.
    if declare -F _get_comp_words_by_ref >/dev/null; then
        _get_comp_words_by_ref -n =: cur words cword
    fi
    local program=${words[0]}
    command -v -- "$program" >/dev/null || program=styleprops

    local line
    local -a found=() files=()
    while IFS= read -r line; do
        case $line in
        :folders) mapfile -t files < <(compgen -d -- "$cur") ;;
        :files) mapfile -t files < <(compgen -f -- "$cur") ;;
        :drawings)
            mapfile -t files < <(compgen -d -- "$cur"; compgen -f -- "$cur" | grep -E '\.(fodg|odg|otg)$')
            ;;
        *) found+=("${line%%$'\t'*}") ;;
        esac
    done < <("$program" complete "${words[@]:1:cword}" 2>/dev/null)

    [ ${#files[@]} -eq 0 ] || compopt -o filenames 2>/dev/null
    case ${found[0]-} in
    *= | *:) compopt -o nospace 2>/dev/null ;;
    esac
    # What the shell takes for words of their own stays out of the answers.
    local before=${cur%"${cur##*[=:]}"}
    COMPREPLY=("${found[@]#"$before"}" "${files[@]}")
}

complete -F _styleprops styleprops
