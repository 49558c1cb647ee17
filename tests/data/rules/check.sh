# check BAD GOOD: what is found in the first one, and that nothing is in the second one. Both are the attributes of an
# article and, behind a ">", its children; or whole files, which begin with "<".
check() {
    local text
    for text in "$1" "$2"; do
        case $text in
        '<'*) ;;
        /* | *'>'*) text="<catalogue>"$'\n'"<article id='4' productname='ALB42' $text"
            case $text in
            *'ALB42'\'' /'*) text="$text/>" ;;
            *) text="$text</article>" ;;
            esac
            text="$text"$'\n'"</catalogue>" ;;
        *) text="<catalogue>"$'\n'"<article id='4' productname='ALB42' $text/>"$'\n'"</catalogue>" ;;
        esac
        printf %s "$text" | ktcatalogue check - --quiet || true
    done
}
