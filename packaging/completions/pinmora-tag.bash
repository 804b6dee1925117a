# Bash completion for pinmora-tag.
# shellcheck shell=bash

_pinmora_tag() {
    # shellcheck disable=SC2034 # _init_completion sets all four
    local cur prev words cword
    _init_completion -n = || return

    # The value of "--logs=exact" is completed as that of "--logs exact" is.
    local option=$prev
    if [[ $cur == --*=* ]]; then
        option=${cur%%=*}
        cur=${cur#*=}
    fi
    case $option in
        --out) _filedir -d ;;
        --gps) _filedir ;;
        --logs) mapfile -t COMPREPLY < <(compgen -W 'auto exact tolerant' -- "$cur") ;;
        --lane) mapfile -t COMPREPLY < <(compgen -W 'process shared' -- "$cur") ;;
        --offset | --name) return ;;
        *)
            if [[ $cur == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W '--gps --offset --name --logs --lane --no-places
                    --out --dry-run --json --help --version' -- "$cur")
            else
                _filedir
            fi
            ;;
    esac
} &&
    complete -F _pinmora_tag pinmora-tag
