#!/usr/bin/env bash
# built-library-self-test.sh LIBRARY LIST OTHER: proves that exported-names.sh and needed-libraries.sh catch what they
# are for. LIBRARY exports what LIST says; OTHER needs libraries beyond the standard one.
set -euo pipefail

folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
library=${1:?usage: built-library-self-test.sh LIBRARY LIST OTHER}
list=$2
other=$3
# shellcheck source=tests/checks/expectations.sh
. "$folder/expectations.sh"

check=$folder/exported-names.sh
sed 1d "$list" >"$trees/one-less"
{ cat "$list"; echo 'Madeup::Name()'; } >"$trees/one-more"
note "the library's own list" "$check" "$library" "$list"
note "a name that is not in the list" fails_saying "+$(head -n 1 "$list")" "$library" "$trees/one-less"
note "a name that is not in the library" fails_saying '-Madeup::Name()' "$library" "$trees/one-more"
note "another library" fails_saying "-$(head -n 1 "$list")" "$other" "$list"

check=$folder/needed-libraries.sh
note "the library needs the standard library alone" "$check" "$library"
note "a third party that was not named" fails_saying 'must not need libpugixml.so' "$other"
note "a file that is no library" fails_saying 'no list of needed libraries' "$list"

conclude
