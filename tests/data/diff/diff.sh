# catalogue CONTENT: the attributes of an article and, behind a ">", its children; or a whole file, which begins with "<".
catalogue() {
    case $1 in
    '<'*) printf '%s\n' "$1" ;;
    *'>'*) printf '<catalogue>\n<article id="4" productname="ALB42" %s</article>\n</catalogue>\n' "$1" ;;
    *) printf '<catalogue>\n<article id="4" productname="ALB42" %s/>\n</catalogue>\n' "$1" ;;
    esac
}

# differ OLD NEW SAME: what is told of the first two, and that nothing is told of the first and the last one.
differ() {
    local new
    for new in "$2" "$3"; do
        ktcatalogue diff <(catalogue "$1") <(catalogue "$new") --quiet --fail-on never | sed -n 's/^    //; s|/dev/fd/[0-9]*:||g; /^[^0-9 ]/p; /^    /p; /^[0-9].*\[/p'
    done
}

# options FORM...: each the attributes of an option.
options() {
    printf '><forms>'
    printf '<form %s/>' "$@"
    printf '</forms>'
}
