#!/bin/bash
# Writes Resources/Resources.qrc anew: every picture, style sheet and text of the folder.
set -eu
cd "$(dirname "$0")/../../Resources"
{
    echo '<RCC>'
    echo '    <qresource prefix="/Resources">'
    find . -type f \( -name '*.png' -o -name '*.gif' -o -name '*.qss' -o -name '*.html' -o -name '*.txt' \) ! -name CMakeLists.txt |
        sed 's|^\./||' | LC_ALL=C sort | sed 's|.*|        <file>&</file>|'
    echo '    </qresource>'
    echo '</RCC>'
} >Resources.qrc
