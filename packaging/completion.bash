# bash completion for xml2ryk                                   -*- shell-script -*-

# Two files, then options that are not there yet.
_xml2ryk() {
    COMPREPLY=()
    ((COMP_CWORD > 2)) || return 0
    compopt +o default
    local option
    for option in --purchase --pause; do
        [[ " ${COMP_WORDS[*]:3} " == *" $option "* ]] || COMPREPLY+=("$option")
    done
    mapfile -t COMPREPLY < <(compgen -W "${COMPREPLY[*]}" -- "${COMP_WORDS[COMP_CWORD]}")
} && complete -o default -F _xml2ryk xml2ryk
