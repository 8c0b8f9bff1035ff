#!/bin/bash
# package_rules.sh SOURCES BUILD VERSION PROGRAM: what comes with the program agrees with it: version, releases, names. Prints
# each breach; ends with 1 if any.
set -u
export LC_ALL=C.UTF-8
sources=$1 build=$2 version=$3 program=$4
cd "$sources" || exit 2
breaches=0

# same TEXT EXPECTED FOUND
same() {
    [ "$2" = "$3" ] && return
    printf '%s: "%s", not "%s"\n' "$1" "$3" "$2"
    breaches=1
}
entry() { sed -n "s/^$1=//p" packaging/sorvane.desktop; }
first_attribute() { sed -n "s/.*<release .*$1=\"\([^\"]*\)\".*/\1/p" "$build/packaging/sorvane.metainfo.xml" | head -1; }

same "sorvane --version" "Sorvane $version" "$("$program" --version)"
# What is not released yet may stand above it.
heading=$(sed -n 's/^## //p' CHANGELOG.md | grep -vx Unreleased | head -1)
same "newest release in CHANGELOG.md" "$version" "${heading%% - *}"
same "newest release in the metainfo" "$version" "$(first_attribute version)"
same "its date" "${heading#* - }" "$(first_attribute date)"
same "newest release in Debian's changelog" "sorvane ($version) " "$(
    packaging/debian_changelog.sh CHANGELOG.md "A <a@b.example>" | sed -n '1s/bookworm.*//p'
)"
same "lines of Debian's changelog that are too long" "" "$(
    packaging/debian_changelog.sh CHANGELOG.md "A <a@b.example>" | grep -E '.{81}'
)"
same "the version, written a second time" "" "$(
    grep -rnIF "$version" README.md docs app headers keys library logging screen packaging scripts cmake
)"

named=$(sed -n 's/.*setDesktopFileName(QStringLiteral("\(.*\)")).*/\1/p' app/window_icon.cpp)
same "what the windows call their desktop file" sorvane "$named"
same "the desktop file that the metainfo tells of" "$named.desktop" \
    "$(sed -n 's/.*<launchable type="desktop-id">\(.*\)<.*/\1/p' packaging/sorvane.metainfo.xml.in)"
same "Exec" sorvane "$(entry Exec)"
same "Icon" sorvane "$(entry Icon)"
for key in Name GenericName Comment Keywords; do
    same "$key in English and German" "2" "$(grep -cE "^$key(\[de\])?=.+" packaging/sorvane.desktop)"
done
exit $breaches
