#!/usr/bin/env bash
# hardened-self-test.sh COMPILER: proves that hardened.sh catches a binary, or a command, that lacks one of the things
# it looks for. COMPILER is the C++ compiler that the small programs are built with.
set -euo pipefail

folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
compiler=${1:?usage: hardened-self-test.sh COMPILER}
# shellcheck source=tests/checks/expectations.sh
. "$folder/expectations.sh"
check=$folder/hardened.sh

cat >"$trees/program.cpp" <<'SOURCE'
#include <cstdio>

int main()
{
    char line[64];
    return std::fgets(line, sizeof line, stdin) == nullptr;
}
SOURCE

# command_file FLAG...: a compile_commands.json with one command.
command_file()
{
    local file
    file=$(mktemp "$trees/commands.XXXXXX")
    printf '[\n{\n  "directory": "/",\n  "command": "c++ %s -o program.o -c %s",\n  "file": "x"\n}\n]\n' \
        "$*" "$trees/program.cpp" >"$file"
    printf '%s' "$file"
}

# program FLAG...: a program that is built with these behind all that is expected.
program()
{
    local file
    file=$(mktemp "$trees/program.XXXXXX")
    "$compiler" -O2 -fPIE -pie -fstack-protector-strong -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack "$@" \
        -o "$file" "$trees/program.cpp"
    printf '%s' "$file"
}

checked=$(command_file -O2 -D_FORTIFY_SOURCE=3)
hardened=$(program)
note "all that is expected" "$check" "$checked" "$hardened"
note "the lower level of checked copies" "$check" "$(command_file -D_FORTIFY_SOURCE=2)" "$hardened"
note "a program at a fixed address" fails_saying 'lies at a fixed address' "$checked" "$(program -no-pie -fno-pie)"
note "writable tables" fails_saying 'stay writable' "$checked" "$(program -Wl,-z,norelro)"
note "addresses resolved late" fails_saying 'resolves addresses while it runs' "$checked" "$(program -Wl,-z,lazy)"
note "an executable stack" fails_saying 'stack is executable' "$checked" "$(program -Wl,-z,execstack)"
note "an unguarded stack" fails_saying 'has no guards' "$checked" "$(program -fno-stack-protector)"
note "one bad binary among good ones" fails_saying 'has no guards' "$checked" "$hardened" \
    "$(program -fno-stack-protector)" "$hardened"
note "a file that is no binary" fails_saying 'no program, library or module' "$checked" "$trees/program.cpp"
note "unchecked copies" fails_saying "$trees/program.cpp" "$(command_file -O2)" "$hardened"
note "checks that are switched off" fails_saying 'copies are not checked' \
    "$(command_file -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=0)" "$hardened"
note "no commands" fails_saying 'found no such file' "$trees/none.json" "$hardened"

conclude
