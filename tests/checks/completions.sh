#!/usr/bin/env bash
# completions.sh PROGRAM BASH ZSH FISH: in each of the shells that is there, the completion script offers what the
# program at PROGRAM takes. BASH, ZSH and FISH are the scripts; a shell that is missing is left out, and said so.
set -euo pipefail

program=${1:?usage: completions.sh PROGRAM BASH ZSH FISH}
bashScript=$2
zshScript=$3
fishScript=$4
PATH=$(cd "$(dirname "$program")" && pwd):$PATH
export PATH
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
mkdir folder
touch plan.fodg plan.txt
failed=0

# expect SHELL TYPED EXPECTED ACTUAL: compares sorted words.
expect()
{
    local actual
    actual=$(printf '%s\n' "$4" | sed '/^$/d' | LC_ALL=C sort | tr '\n' ' ')
    if [ "$actual" != "$3 " ]; then
        printf '%s, "%s": expected "%s ", got "%s"\n' "$1" "$2" "$3" "$actual"
        failed=1
    fi
}

in_bash()
{
    bash --norc -c '
        [ ! -r /usr/share/bash-completion/bash_completion ] || . /usr/share/bash-completion/bash_completion
        . "$1"
        COMP_LINE=$2 COMP_POINT=${#2} COMP_TYPE=9 COMP_KEY=9
        # Words as the shell splits them where it completes.
        mapfile -t COMP_WORDS < <(printf "%s" "$2" | sed -E "s/([=:])/\n\1\n/g; s/ +/\n/g" | sed "/^$/d")
        case $2 in
        *" ") COMP_WORDS+=("") ;;
        esac
        COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
        _styleprops
        printf "%s\n" "${COMPREPLY[@]}"' bash "$bashScript" "$1"
}

in_fish()
{
    HOME=$work fish --no-config -c 'source $argv[1]; complete -C $argv[2]' "$fishScript" "$1" | cut -f 1
}

# zsh completes in its line editor alone; what the script hands to it is caught instead.
in_zsh()
{
    zsh -f -c '
        _describe() { local array=$3 each; [[ $2 != -V ]] || array=$4; for each in "${(@P)array}"; do print -r -- "${${${each//\\:/$(print "\001")}%%:*}//$(print "\001")/:}"; done }
        _files() { print -r -- "files $*" }
        compdef() { : }
        words=("${(@s: :)2}")
        CURRENT=$#words
        PREFIX=$words[-1]
        . "$1"' zsh "$zshScript" "$1"
}

# Without bash-completion the shell splits rows and selectors, and only what is behind the sign is compared.
expect bash 'styleprops insp' 'inspect' "$(in_bash 'styleprops insp')"
expect bash 'styleprops inspect ' 'folder plan.fodg' "$(in_bash 'styleprops inspect ')"
expect bash 'styleprops inspect plan.fodg --ea' '--each' "$(in_bash 'styleprops inspect plan.fodg --ea')"
expect bash 'styleprops inspect --panels ' 'folder' "$(in_bash 'styleprops inspect --panels ')"
expect bash 'styleprops edit plan.fodg --script p' 'plan.fodg plan.txt' "$(in_bash 'styleprops edit plan.fodg --script p')"
expect bash 'styleprops inspect --lang d' 'de' "$(in_bash 'styleprops inspect --lang d')"
expect bash 'styleprops inspect --select na' 'name:' "$(in_bash 'styleprops inspect --select na')"
shells=bash

if command -v fish >/dev/null; then
    expect fish 'styleprops insp' 'inspect' "$(in_fish 'styleprops insp')"
    expect fish 'styleprops inspect ' 'folder/ plan.fodg' "$(in_fish 'styleprops inspect ')"
    expect fish 'styleprops inspect plan.fodg --ea' '--each' "$(in_fish 'styleprops inspect plan.fodg --ea')"
    expect fish 'styleprops inspect --panels ' 'folder/' "$(in_fish 'styleprops inspect --panels ')"
    expect fish 'styleprops inspect --lang d' 'de' "$(in_fish 'styleprops inspect --lang d')"
    expect fish 'styleprops inspect --select na' 'name:' "$(in_fish 'styleprops inspect --select na')"
    shells+=' fish'
fi
if command -v zsh >/dev/null; then
    expect zsh 'styleprops insp' 'inspect' "$(in_zsh 'styleprops insp')"
    expect zsh 'styleprops inspect ' 'files -g *.(fodg|odg|otg)(-.)' "$(in_zsh 'styleprops inspect ')"
    expect zsh 'styleprops inspect plan.fodg --ea' '--each' "$(in_zsh 'styleprops inspect plan.fodg --ea')"
    expect zsh 'styleprops inspect --panels ' 'files -/' "$(in_zsh 'styleprops inspect --panels ')"
    expect zsh 'styleprops inspect --select na' 'name:' "$(in_zsh 'styleprops inspect --select na')"
    shells+=' zsh'
fi
printf 'Completions were tried in: %s\n' "$shells"
exit $failed
