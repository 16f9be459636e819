# SPDX-License-Identifier: MIT
# Completion of qorvix-cli for bash.
_qorvix_cli() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
    local list="--format --output --raw --filters --stored-filters --use-archive-filters --language"
    case $before in
    --format) COMPREPLY=($(compgen -W "jsonl csv" -- "$word")); return ;;
    --language) COMPREPLY=($(compgen -W "en de" -- "$word")); return ;;
    --language-folder) COMPREPLY=($(compgen -d -- "$word")); return ;;
    esac
    if [ "$COMP_CWORD" -eq 1 ]; then
        COMPREPLY=($(compgen -W "export find lookup pack --help --version" -- "$word"))
    elif [[ $word == -* ]]; then
        case $command in
        export) COMPREPLY=($(compgen -W "$list --help" -- "$word")) ;;
        find) COMPREPLY=($(compgen -W "$list --whole-word --case-sensitive --help" -- "$word")) ;;
        lookup) COMPREPLY=($(compgen -W "--language --language-folder --help" -- "$word")) ;;
        pack) COMPREPLY=($(compgen -W "--filters --comments --language --help" -- "$word")) ;;
        esac
    else
        COMPREPLY=($(compgen -f -- "$word"))
    fi
}
complete -o filenames -F _qorvix_cli qorvix-cli
