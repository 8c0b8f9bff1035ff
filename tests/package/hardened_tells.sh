#!/bin/bash
# hardened_tells.sh COMPILER: hardened.sh finds every lack: a program that has all is built again without one thing at a time.
set -u
compiler=$1
check=$(dirname "$(realpath "$0")")/hardened.sh
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failures=0

cat >"$folder/program.cpp" <<'SOURCE'
#include <cstring>
int main(int count, char** words)
{
    char copy[16];
    std::strcpy(copy, words[count - 1]);
    return copy[0];
}
SOURCE

# built FLAG...: what hardened.sh says of it
built() {
    "$compiler" -w -O2 -fPIE -pie -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 \
        -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack "$@" -o "$folder/program" "$folder/program.cpp" || return
    "$check" "$folder/program"
}
# lacking WORDS FLAG...: the one lack that is told
lacking() {
    local words=$1 told
    shift
    told=$(built "$@")
    [ $? = 1 ] && grep -qF "$words" <<<"$told" && return
    printf 'not told with %s: %s; but: %s\n' "$*" "$words" "$told"
    failures=1
}

if ! built; then
    echo "something is told of a program that has all"
    failures=1
fi
lacking "(PIE)" -fno-pie -no-pie
lacking "marked as PIE" -fno-pie -no-pie
lacking "(GNU_RELRO)" -Wl,-z,norelro
lacking "(BIND_NOW)" -Wl,-z,lazy
lacking "(GNU_STACK)" -Wl,-z,execstack
lacking "(__stack_chk_fail)" -fno-stack-protector
lacking "(__*_chk)" -U_FORTIFY_SOURCE
if "$check" "$folder/nothing" 2>/dev/null; then
    echo "nothing is told of a program that is not there"
    failures=1
fi
exit $failures
