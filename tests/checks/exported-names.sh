#!/usr/bin/env bash
# exported-names.sh LIBRARY LIST: LIBRARY exports exactly the names in LIST, one demangled name a line. A name that
# comes or goes is a change of the library's interface, so the list is edited by hand.
set -euo pipefail
export LC_ALL=C

library=${1:?usage: exported-names.sh LIBRARY LIST}
list=${2:?usage: exported-names.sh LIBRARY LIST}

# Constructors and destructors have several entry points with one demangled name.
exported=$(nm --dynamic --defined-only --demangle --format=posix "$library" |
    sed -E 's/ [A-Za-z] [0-9a-f ]*$//' | sort -u)
[ -n "$exported" ] || { echo "$library: exports nothing"; exit 1; }

if ! diff --label "expected: ${list##*/}" --label "exported: ${library##*/}" -U 0 \
    <(sort -u "$list") <(printf '%s\n' "$exported"); then
    echo "Lines with - are missing in the library, lines with + are not in the list."
    exit 1
fi
