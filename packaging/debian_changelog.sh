#!/bin/bash
# debian_changelog.sh CHANGELOG MAINTAINER: prints the numbered releases of a CHANGELOG.md in the form of Debian's changelogs.
# Ends with 1 if there are none.
set -eu
export TZ=UTC LC_ALL=C.UTF-8
maintainer=$2
version="" date="" point="" any=""

# A point that is complete, in lines that Debian's readers take.
end_point() {
    [ -z "$point" ] || fold -s -w 74 <<<"$point" | sed '1s/^/  * /; 2,$s/^/    /; s/ *$//'
    point=""
}
end_release() {
    end_point
    [ -z "$version" ] || printf '\n -- %s  %s\n\n' "$maintainer" "$(date -Rd "$date")"
    version=""
}

while IFS= read -r line; do
    if [[ $line =~ ^"## "([0-9.]+)" - "([0-9-]+)$ ]]; then
        end_release
        version=${BASH_REMATCH[1]} date=${BASH_REMATCH[2]} any=yes
        printf 'sorvane (%s) bookworm; urgency=medium\n' "$version"
    elif [[ $line == "## "* ]]; then
        end_release
    elif [ -z "$version" ]; then
        continue
    elif [[ $line == "### "* ]]; then
        end_point
        printf '\n  [ %s ]\n' "${line#"### "}"
    elif [[ $line == "- "* ]]; then
        end_point
        point=${line#- }
    elif [ -n "$point" ] && [ -n "$line" ]; then
        point+=" ${line#"${line%%[! ]*}"}"
    fi
done <"$1"
end_release
[ -n "$any" ]
