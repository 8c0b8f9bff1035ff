#!/bin/bash
# house_rules.sh FOLDER: rules of the source tree that no compiler checks, but for includes (include_rules.py). Prints each
# breach; ends with 1 if any.
set -u
cd "$1" || exit 2
breaches=0

# rule TEXT BREACHES: a line for each breach, none if the rule holds
rule() {
    [ -z "$2" ] && return
    printf '%s\n%s\n' "$1" "$2"
    breaches=1
}

rooms="app keys headers library screen logging"
both() { find "$@" -name '*.cpp' -o -name '*.h'; }

# shellcheck disable=SC2046,SC2086 # file names of this tree hold no blanks
{
    rule "item data is read and written through key_roles only:" "$(
        grep -nE '(->|\.|[^A-Za-z_:])(setData|data)\([^)]' $(both app keys headers screen) | grep -vE '^(keys/key_roles\.(cpp|h)|screen/(AbstractListWidget|scale_payload)\.cpp):' # list rows and drags
    )"
    rule "the log knows nothing of the program, and of Qt the core:" "$(
        grep -nE '#include <Qt[A-Za-z]+/' $(both logging) | grep -v '<QtCore/'
        grep -noE 'Qt5::[A-Za-z]+|sorvane_(core|[a-z]*support)' logging/CMakeLists.txt | grep -v ':Qt5::Core$'
    )"
    rule "pictures are decoded in keys/pictures.cpp only:" "$(
        grep -nE 'QPixmap\(QStringLiteral|QPixmap\(":|\.load\(":' $(both $rooms)
    )"
    rule "left to do by their own words:" "$(
        grep -rnIE '\b(TO''DO|FIX''ME|XX''X)\b' $rooms tools tests benchmarks scripts docs
    )"
}
exit $breaches
