#!/usr/bin/env bash
# needed-libraries.sh LIBRARY [PREFIX...]: LIBRARY is linked to the standard library, to libraries whose file names
# begin with one of the prefixes, and to nothing else.
set -euo pipefail

library=${1:?usage: needed-libraries.sh LIBRARY [PREFIX...]}
shift
allowed=(libstdc++.so libc++.so libc++abi.so libgcc_s.so libm.so libc.so libpthread.so ld-linux "$@")

mapfile -t needed < <(readelf --dynamic --wide "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]$/\1/p')
[ ${#needed[@]} -gt 0 ] || { echo "$library: no list of needed libraries to be read"; exit 1; }

failed=0
for name in "${needed[@]}"; do
    known=no
    for prefix in "${allowed[@]}"; do
        [[ $name != "$prefix"* ]] || known=yes
    done
    [ $known = yes ] || { echo "$library: must not need $name"; failed=1; }
done
exit $failed
