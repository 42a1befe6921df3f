#!/usr/bin/env bash
# installed-headers.sh ROOT HEADER...: whatever the HEADERs include of the tree at ROOT is among them, so that they can
# be installed without the rest.
set -euo pipefail

root=${1:?usage: installed-headers.sh ROOT HEADER...}
shift
[ $# -gt 0 ] || { echo "No header to look at"; exit 1; }

declare -A installed=()
for header in "$@"; do
    installed[${header#"$root"/}]=1
done
failed=0
for header in "${!installed[@]}"; do
    [ -f "$root/$header" ] || { echo "$header: there is no such file"; failed=1; continue; }
    while IFS= read -r included; do
        [ -n "${installed[$included]-}" ] || { echo "$header: includes $included, which is not installed"; failed=1; }
    done < <(sed -nE 's/^#[ \t]*include "([^"]+)".*/\1/p' "$root/$header")
done
printf '%d headers\n' "${#installed[@]}"
exit $failed
