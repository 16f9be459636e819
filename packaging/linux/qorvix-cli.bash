# SPDX-License-Identifier: MIT
# Completion of qorvix-cli for bash.
_qorvix_cli() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} words
    local list="--format --output --separator --bom --raw --filters --stored-filters --use-archive-filters --language"
    local history="--format --output --separator --bom --raw --partial --language --language-folder"
    COMPREPLY=()
    # bash takes "--language=de" for three words.
    if [ "$word" = = ]; then
        word=
    elif [ "$before" = = ] && [ "$COMP_CWORD" -ge 2 ]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    case $before in
    --format)
        case $command in
        sessions | errors | lookup) words="text jsonl csv" ;;
        stitch) words="text jsonl" ;;
        *) words="jsonl csv html" ;;
        esac
        ;;
    --type) words="error warning all" ;;
    --separator) words="comma semicolon tab" ;;
    --language) words="en de" ;;
    --language-folder) compopt -o dirnames; return ;;
    *)
        if [ "$COMP_CWORD" -eq 1 ]; then
            words="export find sessions errors lookup pack stitch --help --version"
        elif [[ $word == -* ]]; then
            case $command in
            export) words="$list --partial --help" ;;
            find) words="$list --whole-word --case-sensitive --help" ;;
            sessions) words="$history --help" ;;
            errors) words="$history --top --type --filters --help" ;;
            lookup) words="$history --all --help" ;;
            pack) words="--filters --comments --keep-comments --drop-comments --language --help" ;;
            stitch) words="--output --format --language --help" ;;
            esac
        else
            # readline's own names of files, which it knows how to quote.
            compopt -o default
            return
        fi
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _qorvix_cli qorvix-cli
