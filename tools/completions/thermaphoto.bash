# Completion of thermaphoto in bash.

_thermaphoto()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]} choices=
    # "--option=value" comes as three words.
    if [[ $current == = ]]; then
        current=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    COMPREPLY=()

    if ((COMP_CWORD == 1)); then
        choices='info export measure report help --help --version'
    elif [[ $command == help ]]; then
        choices='info export measure report'
    else
        case $previous in
            --layout) choices='auto 0 1' ;;
            --format) [[ $command == export ]] && choices='csv tiff npy png' || choices='csv json table' ;;
            --unit) [[ $command == export ]] && choices='C F file' || choices='C F' ;;
            --language) choices='CH EN RU KO' ;;
            --separator) choices='tab' ;;
            -j | --jobs | --decimals | --span) return ;;
            -o | --output)
                compopt -o filenames 2>/dev/null
                mapfile -t COMPREPLY < <(compgen -d -- "$current")
                return
                ;;
            --tools) _thermaphoto_files '*.json'; return ;;
        esac
    fi
    if [[ -z $choices && $current == -* ]]; then
        choices='--layout -r --recursive -j --jobs -h --help'
        case $command in
            info) choices+=' --json' ;;
            export) choices+=' --format --unit --separator --decimals --header --span' ;;
            measure) choices+=' --tools --unit --format' ;;
            report) choices+=' --tools --unit --language' ;;
        esac
        [[ $command == export || $command == report ]] && choices+=' -o --output -f --force --skip-existing'
    fi
    if [[ -n $choices ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$current")
    else
        _thermaphoto_files '*.[bB][mM][pP]'
    fi
}

# Folders, and the files that match; of _thermaphoto only.
_thermaphoto_files()
{
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "$current"; compgen -f -X "!$1" -- "$current")
}

complete -F _thermaphoto thermaphoto
