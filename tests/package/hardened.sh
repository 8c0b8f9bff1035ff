#!/bin/bash
# hardened.sh PROGRAM: reads a built program and tells what it lacks of that which ends it at a memory fault instead of
# letting the fault be made use of. Prints each lack; ends with 1 if any.
set -u
export LC_ALL=C
program=$1
lacks=0
header=$(readelf -hW "$program") || exit 2
segments=$(readelf -lW "$program")
dynamic=$(readelf -dW "$program")
symbols=$(readelf --dyn-syms -W "$program")

# needs TEXT WHERE PATTERN
needs() {
    grep -qE "$3" <<<"$2" && return
    printf '%s: %s\n' "${program##*/}" "$1"
    lacks=1
}

needs "not at an address of the system's choice (PIE)" "$header" 'Type: +DYN'
needs "not marked as PIE" "$dynamic" '\(FLAGS_1\).*\bPIE\b'
needs "no table that is closed after start (GNU_RELRO)" "$segments" 'GNU_RELRO'
needs "not all functions bound at start (BIND_NOW)" "$dynamic" '\(FLAGS\).*BIND_NOW|\(FLAGS_1\).*\bNOW\b'
needs "no stack that cannot be executed (GNU_STACK)" "$segments" 'GNU_STACK( +0x[0-9a-f]+){5} +RW +'
needs "no guard behind arrays on the stack (__stack_chk_fail)" "$symbols" ' __stack_chk_fail\b'
needs "no library call that knows the room it has (__*_chk)" "$symbols" ' __[a-z]+_chk\b'
exit $lacks
