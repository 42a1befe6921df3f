#!/usr/bin/env bash
# include-arrows.sh ROOT: includes point one way only. Prints every include that does not, and fails.
#
#   apps           sees everything, but the style model only where targets are handed in and where looks are
#                  read; the editor of named styles speaks of names alone and is for all
#   panels         sees the library, host/ and the standard library
#   the library    (module, datasource, presets) sees itself, host/ and the standard library
#   reference_host sees itself, host/ and third-party libraries
#   conformance    (the tests of any host) sees itself, host/ and GoogleTest
#   host           sees itself and the standard library
set -euo pipefail

cd "${1:?usage: include-arrows.sh ROOT}"

folders=()
for folder in apps panels module datasource presets conformance reference_host host; do
    [ ! -d "$folder" ] || folders+=("$folder")
done
[ ${#folders[@]} -gt 0 ] || { echo "No source folder in $PWD"; exit 1; }

mapfile -d '' -t sources < <(find "${folders[@]}" -type f \
    \( -name '*.h' -o -name '*.hpp' -o -name '*.inl' -o -name '*.in' -o -name '*.c' -o -name '*.cc' -o -name '*.cpp' \) \
    -print0 | sort -z)
[ ${#sources[@]} -gt 0 ] || { echo "No source in $PWD"; exit 1; }

awk '
BEGIN {
    library = "module datasource presets host"
    sees["host"] = "host"
    sees["module"] = sees["datasource"] = sees["presets"] = library
    sees["reference_host"] = "reference_host host"
    sees["conformance"] = "conformance host"
    sees["panels"] = "panels " library
    sees["apps"] = "apps reference_host panels " library
    mayUseThirdParties["reference_host"] = mayUseThirdParties["apps"] = 1
    handover = "^apps/workbench/(TargetHandover|ShapeLooks)\\.(h|cpp)$"
    namesAlone = "host/style_model/IStylesCollectionEditor.h"
}

function contains(list, word) { return index(" " list " ", " " word " ") > 0 }
function complain(why) { printf "%s:%d: %s: %s\n", FILENAME, FNR, why, $0; failed = 1 }
function folderOf(path) { return path ~ /\// ? substr(path, 1, index(path, "/") - 1) : "" }

function checkOwn(from, path,    to) {
    to = folderOf(path)
    if (path ~ /(^|\/)\.\.?\// || !(to in sees))
        complain("write the path from the top of the tree")
    else if (!contains(sees[from], to))
        complain(from "/ must not see " to "/")
    else if (from == "apps" && path ~ /^(host|reference_host)\/style_model\// && FILENAME !~ handover && path != namesAlone)
        complain("only apps/workbench/TargetHandover and ShapeLooks may see the style model")
}

function checkForeign(from, path) {
    if (folderOf(path) in sees)
        complain("our own headers stand in quotes")
    else if (from == "conformance" && path ~ /^(gmock|gtest)\//)
        return
    else if (!(from in mayUseThirdParties) && path !~ /^[a-z][a-z0-9_]*$/)
        complain(from "/ may use the standard library alone")
}

/^[ \t]*#[ \t]*(include|include_next|import)([^A-Za-z0-9_]|$)/ {
    from = folderOf(FILENAME)
    path = $0
    sub(/^[ \t]*#[ \t]*[a-z_]+[ \t]*/, "", path)
    opening = substr(path, 1, 1)
    path = substr(path, 2)
    sub(opening == "<" ? ">.*" : "\".*", "", path)
    if (opening == "\"")
        checkOwn(from, path)
    else if (opening == "<")
        checkForeign(from, path)
    else
        complain("a computed include cannot be checked")
}

END { exit failed }
' "${sources[@]}"
