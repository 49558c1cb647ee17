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
        words="show check diff order orders preview report keywords schema --help --language --version -h -v"
    else
        case $command:$previous in
        check:--format) words="text json sarif" ;;
        diff:--format) words="text json markdown sarif" ;;
        preview:--format) words="svg png pdf" ;;
        show:--format | order:--format | orders:--format) words="text json" ;;
        check:--fail-on) words="error warning hint never" ;;
        diff:--fail-on) words="breaking charge production offer text never" ;;
        check:--color) words="auto always never" ;;
        check:--error | check:--explain | check:--ignore | diff:--explain | diff:--ignore)
            words=$("$program" "$command" --list-rules 2>/dev/null | sed 's/^ *//; s/ .*//')
            ;;
        check:--files-from | check:--max-findings | check:-j) return ;;
        diff:--orders | diff:--list-orders) return ;;
        keywords:--format) words="text json markdown" ;;
        schema:--format) words="xsd rng" ;;
        *:--language) words="de en" ;;
        report:--class) words=$("$program" keywords KTArticleClass 2>/dev/null | sed -n 's/^  \([a-z_]*\) .* 0x.*/\1/p') ;;
        *:--article | *:--choose | *:--pages) return ;;
        *:-o | *:--output) return ;;
        *)
            case $command:$current in
            show:-*) words="--article --pages --format --json" ;;
            check:-*)
                words="--files-from --format --json --fail-on --ignore --error --pedantic -j --max-findings --quiet"
                words+=" --list-rules --explain --color"
                ;;
            diff:-*)
                words="--format --json --fail-on --ignore --article --summary --orders --list-orders --quiet"
                words+=" --list-rules --explain"
                ;;
            orders:-*) words="--format --json" ;;
            order:-*) words="--article --pages --choose --format --json" ;;
            preview:-*) words="--all --article --format --output --page --pages --width -o" ;;
            report:-*) words="--against --article --class --only-findings --output -o" ;;
            keywords:-*) words="--format --json" ;;
            schema:-*) words="--format --output -o" ;;
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
