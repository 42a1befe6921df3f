#!/usr/bin/env bash
# Proves that panel-names.sh lets ordinary programs pass and catches a program that knows a panel.
set -euo pipefail

check=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/panel-names.sh
# shellcheck source=tests/checks/expectations.sh
. "$(dirname "$check")/expectations.sh"

# A house with two panels; the expectations add one program.
panels=(
    panels/fill/Brush.h 'class PANELS_API Brush final : public PanelDatasource'
    panels/fill/fill.panel.xml '<panel class="PaintBox"><row identifier="color" property="PaintColor" label="x"/></panel>'
    panels/style/Whole.cpp 'struct Whole'
    panels/style/style.panel.xml '<row identifier="style" property="StyleName"/>'
    panels/character/Letters.cpp 'class Letters {'
    datasource/PropertyTable.cpp '{L"StyleName", 1},'
)

knows_none() { accepts "$1" "${panels[@]}" apps/cli/A.cpp "$2"; }
knows_one() { rejects "$1" "$2" "${panels[@]}" apps/cli/A.cpp "$3"; }

knows_none "a key of the report" 'report["style"] = target.style;'
knows_none "a selector" 'if (text.starts_with("style:"))'
knows_none "prose" 'throw Error("an invalid character in line " + line);'
knows_none "the standard library" 'std::fill(a, b, 0); out << std::setfill(L'"' '"');'
knows_none "a comment" '// the "fill" panel is one of several'
knows_none "a long comment" '/* "fill" */ int x;'
knows_none "a quote as a character" "char quote = '\"'; f(a, \"fill it up\");"
knows_none "what the library binds" 'Read(L"StyleName");'
knows_none "a longer word" 'Key("fulfilled.refill");'
accepts "the handover names a category" "${panels[@]}" \
    apps/workbench/TargetHandover.cpp 'if (category == GetCharacterStyleCategoryName())'

knows_one "a comparison" 'names the panel fill: "fill"' 'if (panel == "fill")'
knows_one "a wide text" 'names the panel character' 'if (panel == L"character")'
knows_one "a text after a comment" 'names the panel fill' '/* x */ f("fill");'
knows_one "a raw text" 'names the panel fill' 'auto x = R"x(fill)x";'
knows_one "a path" 'names the panel fill: "fill.color"' 'keys.push_back("fill.color");'
knows_one "a path of the whole style" 'names the panel style: "style.fill"' 'keys.push_back("style.fill");'
knows_one "a bound name that begins with the panel" 'names the panel fill: "FillColor"' 'Read("FillColor");'
knows_one "a bound name that only the description tells" 'a property of a panel: "PaintColor"' 'Read(L"PaintColor");'
knows_one "a module's file" 'names the panel fill: "libfill.so"' 'Load("libfill.so");'
knows_one "a module's folder" 'names the panel style: "panels/style"' 'Load("panels/style");'
knows_one "an example" 'names the panel style' 'out << "tool inspect x.fodg --panel style";'
knows_one "a class" 'a class of a panel: Brush' 'auto brush = Brush();'
knows_one "a class that the description tells" 'a class of a panel: PaintBox' 'registrar.Find<PaintBox>();'
knows_one "a header" 'includes the header of a panel' '#include "panels/fill/Brush.h"'
knows_one "a category" 'a category of a panel: FillStyleCategoryName' 'if (category == FillStyleCategoryName)'
knows_one "an identifier" 'names a panel: IsFillPanel' 'bool IsFillPanel(const Panel& panel);'
rejects "the handover names a panel" 'names the panel fill' "${panels[@]}" \
    apps/workbench/TargetHandover.cpp 'if (name == "fill")'
rejects "there is no panel to look for" 'No panel in' apps/cli/A.cpp 'int x;'

conclude
