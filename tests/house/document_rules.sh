#!/bin/bash
# document_rules.sh FOLDER: what the documents promise is there: pictures, pages, options. Prints each breach; ends with 1
# if any.
set -u
export LC_ALL=C
cd "$1" || exit 2
breaches=0
options_from=app/CommandLine.cpp
documents=(README.md CONTRIBUTING.md CHANGELOG.md docs/*.md)

# rule TEXT BREACHES: a line for each breach, none if the rule holds
rule() {
    [ -z "$2" ] && return
    printf '%s\n%s\n' "$1" "$2"
    breaches=1
}

# A document in one line, so that a tag may be broken over two.
flat() { tr '\n' ' ' <"$1"; }
# The pictures that a document names, in Markdown and in HTML, and its links, as it writes them.
pictures_of() {
    flat "$1" | grep -oE '!\[[^]]*\]\([^)]*\)' | sed 's/.*](\(.*\))/\1/'
    flat "$1" | grep -oE '<img [^>]*>' | sed -n 's/.*src="\([^"]*\)".*/\1/p'
}
links_of() { flat "$1" | sed 's/!\[//g' | grep -oE '\]\([^)]*\)' | sed 's/](\(.*\))/\1/' | grep -vE '^https?:'; }
# The places in a document that a link can lead to.
headings_of() { sed -n 's/^##* //p' "$1" | tr '[:upper:]' '[:lower:]' | sed 's/[^a-z0-9 _-]//g; s/ /-/g'; }
named_pictures() {
    local document picture
    for document in "${documents[@]}"; do
        pictures_of "$document" | while read -r picture; do
            realpath -m --relative-to=. "$(dirname "$document")/$picture"
        done
    done
}
lost_links() { # DOCUMENT
    local link page place
    links_of "$1" | while read -r link; do
        page=${link%%#*} place=${link#*#}
        [ "$place" = "$link" ] && place=""
        if [ -n "$page" ]; then page=$(dirname "$1")/$page; else page=$1; fi
        if [ ! -e "$page" ]; then
            echo "$1: $link"
        elif [ -n "$place" ] && ! headings_of "$page" | grep -qxF "$place"; then
            echo "$1: $link"
        fi
    done
}
options() {
    sed -n 's/^ *{"\([a-z-]*\)",.*/\1/p' "$options_from"
    echo help
    echo version
}

rule "fewer options in $options_from than the program can have:" "$([ "$(options | wc -l)" -ge 10 ] || options)"
rule "pictures that a document names and nobody has:" "$(
    named_pictures | sort -u | while read -r picture; do [ -e "$picture" ] || echo "$picture"; done
)"
rule "pictures that no document names:" "$(
    comm -23 <(find docs/pictures -type f | sort) <(named_pictures | sort -u)
)"
rule "pictures without a text for who cannot see them:" "$(
    for document in "${documents[@]}"; do
        flat "$document" | grep -oE '!\[ *\]\([^)]*\)'
        flat "$document" | grep -oE '<img [^>]*>' | grep -vE 'alt="[^"]{10,}"'
    done
)"
rule "links that lead nowhere:" "$(for document in "${documents[@]}"; do lost_links "$document"; done)"
for document in README.md docs/user-guide.md; do
    rule "options that $document does not tell of:" "$(
        options | while read -r option; do grep -qE -- "\`--${option}[\` =]" "$document" || echo "--$option"; done
    )"
done
rule "folders of tests that tests/README.md does not tell of:" "$(
    find tests -mindepth 1 -maxdepth 1 -type d -printf '%f\n' | sort |
        while read -r folder; do grep -qE "\`$folder\`" tests/README.md || echo "tests/$folder"; done
)"
exit $breaches
