# bash completion for xml2ryk                                   -*- shell-script -*-

# Two files, then the options that are not there yet.
_xml2ryk() {
    COMPREPLY=()
    ((COMP_CWORD > 2)) || return 0
    compopt +o default
    local option given=" ${COMP_WORDS[*]:3:COMP_CWORD-3} "
    for option in --purchase --pause; do
        [[ $option != "${COMP_WORDS[COMP_CWORD]}"* || $given == *" $option "* ]] ||
            COMPREPLY+=("$option")
    done
} && complete -o default -F _xml2ryk xml2ryk
