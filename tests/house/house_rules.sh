#!/bin/bash
# house_rules.sh FOLDER: rules of the source tree that no compiler checks. Prints each breach; ends with 1 if any.
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
lower="keys headers library screen logging"
sources() { find "$@" -name '*.cpp'; }
headers() { find "$@" -name '*.h'; }
both() { find "$@" -name '*.cpp' -o -name '*.h'; }

# shellcheck disable=SC2046,SC2086 # file names of this tree hold no blanks
{
    rule "item data is read and written through key_roles only:" "$(
        grep -nE '(->|\.|[^A-Za-z_:])(setData|data)\([^)]' $(both app keys headers screen) | grep -vE '^(keys/key_roles\.(cpp|h)|screen/(AbstractListWidget|scale_payload)\.cpp):' # list rows and drags
    )"
    rule "headers below app/ name the window by a forward declaration only:" "$(
        grep -ln '#include "app/MainWnd.h"' $(headers $lower)
    )"
    may_reach_the_window="headers/AnchorsGroup.cpp headers/DiagramScene.cpp headers/DiagramScene_drag.cpp
        headers/DiagramScene_drop.cpp headers/HeaderController.cpp
        headers/HeaderController_menu.cpp headers/HeaderController_records.cpp
        headers/HeaderController_reset.cpp headers/HeaderItem.cpp headers/HeaderItem_names.cpp
        headers/selector_access.cpp library/DbReadWriter.cpp library/SettingsStore_file.cpp keys/StageMenu.cpp keys/ResizableItem_activation.cpp keys/ResizableItem_drag.cpp
        keys/ResizableItem_indexes.cpp
        keys/ResizableItem_mapping.cpp keys/ResizableItem_pointer.cpp keys/ResizableItem_press.cpp
        keys/ScaleKeyController.cpp keys/TonicKeyController.cpp keys/TonicKeyItem.cpp
        screen/AbstractDialog.cpp screen/AddWindow.cpp screen/AlertWidget.cpp screen/CategoryListWidget.cpp
        screen/CenterScreen.cpp screen/CenterScreen_browser.cpp screen/CenterScreen_credits.cpp
        screen/CenterScreen_library.cpp screen/CenterScreen_library_edit.cpp screen/CenterScreen_ports.cpp
        screen/ChangeDialog.cpp screen/EditWindow.cpp screen/LibraryButton.cpp screen/ScaleFields.cpp
        screen/PortListWidget.cpp screen/ScaleListWidget.cpp"
    rule "sources that reach the window without leave:" "$(
        grep -l '#include "app/MainWnd.h"' $(sources $lower) | grep -vxF "$(printf '%s\n' $may_reach_the_window)"
    )"
    upward() { # ROOM UPPER...
        local room=$1
        shift
        rule "includes of $room/ that point upward:" "$(
            grep -nE "#include \"($(IFS='|'; echo "$*"))/" $(both "$room") |
                grep -vE '"(app/MainWnd|headers/header_data)\.h"' |
                grep -vE "^($(echo $may_reach_the_window | tr ' ' '|')):[0-9]+:#include \"headers/" |
                grep -vE '^library/(DbReadWriter|SettingsStore_file)\.cpp:[0-9]+:#include "(keys|screen)/' # the state of all rooms
        )"
    }
    upward logging library keys headers screen app
    upward library keys headers screen app
    upward keys headers screen app
    upward headers screen app
    upward screen app
    rule "the log knows nothing of the program, and of Qt the core:" "$(
        grep -nE '#include ("|<Qt[A-Za-z]+/)' $(both logging) | grep -vE '#include ("logging/|<QtCore/)'
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
