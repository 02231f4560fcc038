# bash completion for xml2ryk-batch                             -*- shell-script -*-

_xml2ryk_batch() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words
    local options="--purchase --json --timeout --log --help"
    COMPREPLY=()
    case ${COMP_WORDS[1]} in
    check) options+=" --all --jobs --allow-empty --accept" ;;
    convert) options+=" --all --jobs --allow-empty --accept --into --wait --strict --max-drop --keep" ;;
    verify) options+=" --source" ;;
    *) options= ;;
    esac
    case $before in
    --accept) words="no-code no-partner no-number no-lines prefixed-name not-reached" ;;
    --jobs | --timeout | --wait | --max-drop | --keep) return ;;
    --into) compopt -o dirnames && return ;;
    --log | --source) compopt -o default && return ;;
    *)
        ((COMP_CWORD > 1)) && [[ $word != -* ]] && compopt -o default && return
        words=$options
        ((COMP_CWORD > 1)) || words="check convert verify --help --version"
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
} && complete -F _xml2ryk_batch xml2ryk-batch
