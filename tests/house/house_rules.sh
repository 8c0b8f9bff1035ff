#!/bin/bash
# house_rules.sh FOLDER: rules of the source tree that no compiler checks. Prints each breach; ends with 1 if any.
set -u
cd "$1" || exit 2
breaches=0

# rule TEXT: the breaches come on standard input, a line each
rule() {
    local lines
    lines=$(cat)
    [ -z "$lines" ] && return
    printf '%s\n%s\n' "$1" "$lines"
    breaches=1
}

rooms="app keys headers library screen logging"

grep -nE '(->|\.|[^A-Za-z_:])(setData|data)\(' $(find $rooms -name '*.cpp' -o -name '*.h') |
    grep -vE '^keys/key_roles\.(cpp|h):|message->|\.constData\(' | rule "item data is read and written through key_roles only:"

grep -ln '#include "app/MainWnd.h"' $(find keys headers library screen logging -name '*.h') |
    rule "headers below app/ name the window by a forward declaration only:"

allowed="keys/ResizableItem_activation.cpp keys/ResizableItem_indexes.cpp keys/ResizableItem_mapping.cpp
keys/ResizableItem_press.cpp keys/ScaleKeyController.cpp keys/TonicKeyItem.cpp screen/CenterScreen.cpp"
grep -l '#include "app/MainWnd.h"' $(find keys headers library screen logging -name '*.cpp') |
    grep -vxF -f <(tr ' ' '\n' <<<"$allowed" | sed '/^$/d') | rule "sources that reach the window without leave:"

upward() { # ROOM UPPER...: includes that point up
    local room=$1
    shift
    grep -nE "#include \"($(IFS='|'; echo "$*"))/" $(find "$room" -name '*.cpp' -o -name '*.h') |
        grep -v '"app/MainWnd.h"' | rule "includes of $room/ that point upward:"
}
upward logging library keys headers screen app
upward library keys headers screen app
upward keys headers screen app
upward headers screen app
upward screen app

grep -nE 'QPixmap\(QStringLiteral|QPixmap\(":|\.load\(":' $(find $rooms -name '*.cpp' -o -name '*.h') |
    rule "pictures are decoded in keys/pictures.cpp only:"

grep -rnE '\b(TO''DO|FIX''ME|XX''X)\b' $rooms tools tests benchmarks scripts docs | rule "left to do by their own words:"

exit $breaches
