#!/usr/bin/env bash
# hardened.sh COMMANDS BINARY...: programs, libraries and modules are built so that an overrun ends the program. COMMANDS
# is the compile_commands.json that they were built by. Every binary
#
#   can lie at any address, a program as a position-independent one;
#   has its tables of addresses resolved at start and read-only from then on;
#   has a stack that is not executable, and guards in it;
#
# and every compile command asks for checked copies: a binary does not show that where the compiler could prove all of
# its copies right.
set -euo pipefail
export LC_ALL=C

commands=${1:?usage: hardened.sh COMMANDS BINARY...}
shift
[ $# -gt 0 ] || { echo "usage: hardened.sh COMMANDS BINARY..."; exit 1; }
[ -s "$commands" ] || { echo "$commands: expected compile commands, found no such file"; exit 1; }

failed=0
complain()
{
    printf '%s: %s\n' "$1" "$2"
    failed=1
}

# check_binary FILE
check_binary()
{
    local file=$1 header segments dynamic symbols
    if ! header=$(readelf --file-header --wide "$file" 2>/dev/null); then
        complain "$file" "no program, library or module to be read"
        return
    fi
    segments=$(readelf --program-headers --wide "$file")
    dynamic=$(readelf --dynamic --wide "$file")
    symbols=$(readelf --dyn-syms --wide "$file")

    grep -qE 'Type: +DYN' <<<"$header" || complain "$file" "lies at a fixed address; expected -pie"
    grep -q 'GNU_RELRO' <<<"$segments" || complain "$file" "its tables of addresses stay writable; expected -z relro"
    grep -qE '\((FLAGS|FLAGS_1)\).*(BIND_NOW|NOW)' <<<"$dynamic" ||
        complain "$file" "resolves addresses while it runs; expected -z now"
    ! grep -qE 'GNU_STACK.* RWE ' <<<"$segments" || complain "$file" "its stack is executable; expected -z noexecstack"
    grep -q '__stack_chk_' <<<"$symbols" ||
        complain "$file" "its stack has no guards; expected -fstack-protector-strong"
}

for binary in "$@"; do
    check_binary "$binary"
done

unchecked=$(sed -nE '/"command":/{/-D_FORTIFY_SOURCE=[23]/!s/.* -c ([^ "]+).*/\1/p}' "$commands")
[ -z "$unchecked" ] || complain "$commands" "copies are not checked, expected -D_FORTIFY_SOURCE, in:"$'\n'"$unchecked"
grep -q '_FORTIFY_SOURCE' "$commands" || complain "$commands" "not one command asks for checked copies"
exit $failed
