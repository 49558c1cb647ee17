# Completion of ktcatalogue for bash. Where it has no words, file names are completed.

_ktcatalogue() {
    local program=${COMP_WORDS[0]} command=${COMP_WORDS[1]}
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words=
    # "--format=j" comes as three words.
    if [ "$current" = = ]; then
        current=
    elif [ "$previous" = = ]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi

    if [ "$COMP_CWORD" -eq 1 ]; then
        words="show order preview keywords --help --version -h -v"
    else
        case $command:$previous in
        keywords:--format) words="text json markdown" ;;
        *:--article | *:--choose | *:--pages) return ;;
        *:-o | *:--output) return ;;
        *)
            case $command:$current in
            show:-*) words="--article --pages --json" ;;
            order:-*) words="--article --pages --choose --json" ;;
            preview:-*) words="--article --pages --output -o" ;;
            keywords:-*) words="--format --json" ;;
            keywords:*) words=$("$program" keywords 2>/dev/null | sed -n 's/^\(KT[A-Za-z]*\).*/\1/p') ;;
            esac
            case $current in
            -*) words+=" --help -h" ;;
            esac
            ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -o default -F _ktcatalogue ktcatalogue
