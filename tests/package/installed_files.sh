#!/bin/bash
# installed_files.sh CMAKE BUILD LIST: installing puts exactly the listed files into a prefix, none of them empty, pages among
# them whose links all lead to something that is installed too. Prints each breach; ends with 1 if any.
set -u
export LC_ALL=C
cmake=$1 build=$2 list=$3
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
breaches=0

# rule TEXT BREACHES: a line for each breach, none if the rule holds
rule() {
    [ -z "$2" ] && return
    printf '%s\n%s\n' "$1" "$2"
    breaches=1
}
lost_links() {
    local page link
    find "$prefix" -name '*.md' | while read -r page; do
        tr '\n' ' ' <"$page" | grep -oE '\]\([^)#]+|src="[^"]*"' | sed 's/^](//; s/^src="\(.*\)"$/\1/' |
            grep -vE '^https?:' | while read -r link; do
            [ -e "$(dirname "$page")/$link" ] || echo "${page#"$prefix"/}: $link"
        done
    done
}

"$cmake" --install "$build" --prefix "$prefix" >/dev/null || exit 2
installed=$(cd "$prefix" && find . ! -type d | sed 's,^\./,,' | sort)
rule "files that are installed and not listed, or (>) listed and not installed:" "$(
    diff <(echo "$installed") <(sort "$list") | grep '^[<>]'
)"
rule "empty files:" "$(find "$prefix" -type f -empty)"
rule "fewer pages than there are:" "$([ "$(find "$prefix" -name '*.md' | wc -l)" -ge 4 ] || echo "$installed")"
rule "links of installed pages that lead nowhere:" "$(lost_links)"
rule "files that not everyone may read:" "$(find "$prefix" -type f ! -perm -444)"
rule "the program may not be run by everyone:" "$(find "$prefix/bin" -type f ! -perm -555)"
exit $breaches
