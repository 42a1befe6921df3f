#!/usr/bin/env bash
# panel-names.sh ROOT: the programs know no panel by name. Panels come from a folder at run time, and whatever a
# program says to one goes by what that panel's description tells; so in apps/ there is
#
#   no include of a panel's own header, and no mention of its classes;
#   no text that names a panel: a word of its own in a text without spaces ("fill", "fill.color", "FillColor",
#   "libfill.so"), or behind "--panel" in any text;
#   no property that only a panel binds;
#   no identifier made of a panel's name and Panel, Category or Datasource, but for the categories where targets are
#   handed in.
#
# "style" is an everyday word of these programs, so alone it is nobody's name; as a path or behind "--panel" it is.
# The panels are the folders in panels/ that hold a source or a description.
set -euo pipefail

cd "${1:?usage: panel-names.sh ROOT}"

# declared_classes FILE...: the classes that C++ files declare, in one line.
declared_classes()
{
    sed -nE 's/^[[:space:]]*(class|struct)[[:space:]]+([A-Z_]+[[:space:]]+)?([A-Za-z0-9_]+).*/\3/p' /dev/null "$@" | tr '\n' ' '
}

# attributes NAME FILE...: the values of this attribute in descriptions, in one line.
attributes()
{
    local name=$1
    shift
    cat /dev/null "$@" | tr '\n<' ' \n' | sed -nE 's/.*[[:space:]]'"$name"'="([^"]*)".*/\1/p' | tr '\n' ' '
}

shopt -s nullglob
names='' classes='' properties=''
for folder in panels/*/; do
    sources=("$folder"*.cpp "$folder"*.h)
    descriptions=("$folder"*.panel.xml)
    [ ${#sources[@]} -gt 0 ] || [ ${#descriptions[@]} -gt 0 ] || continue
    names+=" $(basename "$folder")"
    classes+=" $(declared_classes "${sources[@]}") $(attributes class "${descriptions[@]}")"
    properties+=" $(attributes property "${descriptions[@]}")"
done
[ -n "$names" ] || { echo "No panel in $PWD/panels"; exit 1; }

# What the library itself binds is common to all panels and names none.
libraryNames=''
[ ! -f datasource/PropertyTable.cpp ] || libraryNames=$(grep -oE '"[A-Za-z_]+"' datasource/PropertyTable.cpp | tr -d '"' | tr '\n' ' ')

mapfile -d '' -t sources < <(find apps -type f \( -name '*.h' -o -name '*.hpp' -o -name '*.inl' -o -name '*.in' -o -name '*.cpp' \) -print0 | sort -z)
[ ${#sources[@]} -gt 0 ] || { echo "No source in $PWD/apps"; exit 1; }

NAMES=$names CLASSES=$classes PROPERTIES=$properties LIBRARY_NAMES=$libraryNames awk '
function setOf(set, words,    list, i, n) {
    n = split(words, list, " ")
    for (i = 1; i <= n; ++i)
        set[list[i]] = 1
}

BEGIN {
    setOf(isName, ENVIRON["NAMES"])
    setOf(isClass, ENVIRON["CLASSES"])
    setOf(isProperty, ENVIRON["PROPERTIES"])
    setOf(isCommon, ENVIRON["LIBRARY_NAMES"])
    for (name in isName)
        isCapitalName[toupper(substr(name, 1, 1)) substr(name, 2)] = 1
}

function complain(why) { printf "%s:%d: %s\n", FILENAME, FNR, why; failed = 1 }

# The words of a text: "FillColor" and "fill.color" have two.
function nameAmongWords(text,    words, count, i) {
    sub(/(^|\/)lib/, " ", text)
    gsub(/[A-Z]/, " &", text)
    gsub(/[^A-Za-z]+/, " ", text)
    count = split(tolower(text), words, " ")
    for (i = 1; i <= count; ++i)
        if (words[i] in isName && words[i] != "style")
            return words[i]
    return ""
}

function checkText(text,    name) {
    for (name in isName)
        if (text ~ ("--panel[ =]" name "([^A-Za-z]|$)") || text ~ ("(^|[^A-Za-z])panels/" name "([^A-Za-z]|$)") || text ~ ("^" name "\\.[a-z]"))
            complain("names the panel " name ": \"" text "\"")
    if (text ~ /[ \t]/)
        return
    name = nameAmongWords(text)
    if (name != "")
        complain("names the panel " name ": \"" text "\"")
    else if (text in isProperty && !(text in isCommon))
        complain("names a property of a panel: \"" text "\"")
}

function checkIdentifier(word,    name) {
    # The base of all panels, through which targets are handed in.
    if (word == "BaseStylePropertiesDatasource")
        return
    if (word in isClass) {
        complain("mentions a class of a panel: " word)
        return
    }
    for (name in isCapitalName) {
        if (word ~ ("(^|[a-z])" name "(Style)?Category") && FILENAME !~ /^apps\/workbench\/(TargetHandover|ShapeLooks)\.(h|cpp)$/)
            complain("names a category of a panel: " word)
        if (word ~ ("(^|[a-z])" name "(Style|Properties)?(Panel|Data[Ss]ource)"))
            complain("names a panel: " word)
    }
}

function checkCode(code) {
    while (match(code, /[A-Za-z_][A-Za-z0-9_]*/)) {
        checkIdentifier(substr(code, RSTART, RLENGTH))
        code = substr(code, RSTART + RLENGTH)
    }
}

# Splits a line into code and texts; a raw text or a comment may go on in the next line.
function scan(line,    code, c, end) {
    code = ""
    while (line != "") {
        if (inComment) {
            end = index(line, "*/")
            if (!end)
                return code
            inComment = 0
            line = substr(line, end + 2)
        } else if (rawEnd != "") {
            end = index(line, rawEnd)
            checkText(end ? substr(line, 1, end - 1) : line)
            if (!end)
                return code
            line = substr(line, end + length(rawEnd))
            rawEnd = ""
        } else if (line ~ /^\/\//) {
            return code
        } else if (line ~ /^\/\*/) {
            inComment = 1
            line = substr(line, 3)
        } else if (match(line, /^R"[^(]*\(/)) {
            rawEnd = ")" substr(line, 3, RLENGTH - 3) "\""
            line = substr(line, RLENGTH + 1)
        } else if (match(line, /^"([^"\\]|\\.)*"/)) {
            checkText(substr(line, 2, RLENGTH - 2))
            code = code " "
            line = substr(line, RLENGTH + 1)
        } else if (match(line, /^\047([^\047\\]|\\.)+\047/)) {
            line = substr(line, RLENGTH + 1)
        } else {
            code = code substr(line, 1, 1)
            line = substr(line, 2)
        }
    }
    return code
}

FNR == 1 { inComment = 0; rawEnd = "" }

/^[ \t]*#[ \t]*include[ \t]*["<]panels\/[^\/]+\// { complain("includes the header of a panel: " $0); next }

/^[ \t]*#[ \t]*include/ { next }

{ checkCode(scan($0)) }

END { exit failed }
' "${sources[@]}"
