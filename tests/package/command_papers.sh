#!/usr/bin/env bash
# Manual pages and completions have exactly the options that the programs' own help names.
#
#   command_papers.sh CMAKE BUILD
source "$(dirname "${BASH_SOURCE[0]}")/installed.sh"

# long_options: those in the text on standard input, sorted.
long_options() {
    grep -oE -- '--[a-z][a-z-]*[a-z]' | sort -u
}

# same WHAT EXPECTED FOUND
same() {
    [[ $2 == "$3" ]] || complain "$1:" "$(diff <(echo "$2") <(echo "$3"))"
}

for program in pinmora pinmora-tag; do
    page=$prefix/share/man/man1/$program.1.gz
    warnings=$(zcat "$page" | groff -man -ww -b -Tutf8 2>&1 >/dev/null)
    [[ -z $warnings ]] || complain "The page of $program:" "$warnings"
    same "The options on the page of $program" "$("$prefix/bin/$program" --help | long_options)" \
        "$(zcat "$page" | groff -man -Tascii -P-cbou | sed -n '/^OPTIONS/,/^EXIT STATUS/p' | long_options)"
done

options=$("$prefix/bin/pinmora-tag" --help | long_options)
same "The options in zsh" "$options" \
    "$(sed -n "s/^[^#]*[*)'\"]\(--[a-z-]*\)[=[].*/\1/p" "$prefix/share/zsh/vendor-completions/_pinmora-tag" | sort -u)"
same "The options in fish" "$options" \
    "$(sed -n 's/.* -l \([a-z-]*\) .*/--\1/p' "$prefix/share/fish/vendor_completions.d/pinmora-tag.fish" | sort -u)"

# completed WORD...: what bash offers for the last word of a command line, a line each.
completed() {
    bash -c '
        source /usr/share/bash-completion/bash_completion
        source "$1"
        shift
        COMP_LINE="pinmora-tag $*"
        # As the shell does it: "=" stands alone.
        mapfile -t COMP_WORDS < <(printf "%s\n" pinmora-tag "$@" | sed "s/^\(--[a-z]*\)=/\1\n=\n/")
        COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) COMP_POINT=${#COMP_LINE}
        _pinmora_tag pinmora-tag "${COMP_WORDS[-1]}" "${COMP_WORDS[-2]}"
        printf "%s\n" "${COMPREPLY[@]}"' _ "$prefix/share/bash-completion/completions/pinmora-tag" "$@" |
        sort
}
same "The options in bash" "$options" "$(completed --)"
same "The readings in bash" $'auto\nexact\ntolerant' "$(completed --logs '')"
same "The readings after = in bash" exact "$(completed --logs=e)"
touch "$prefix/walk.gpx"
same "The files in bash" "$prefix/walk.gpx" "$(completed --gps "$prefix/wa")"
same "The folders in bash" "$prefix/share" "$(completed --out "$prefix/s")"

exit "$failed"
