#!/usr/bin/env bash
# edit-shadows.sh STYLEPROPS PANELS: the panel shows, edits and keeps shadows of a drawing, through the tool alone.
set -euo pipefail

tool=$1
panels=$2
folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export STYLEPROPS_CONFIG_DIR=$work/configuration LC_ALL=C.UTF-8

# expect WHAT EXPECTED ACTUAL
expect()
{
    if [ "$2" != "$3" ]; then
        printf '%s\n--- expected\n%s\n--- instead\n%s\n' "$1" "$2" "$3"
        exit 1
    fi
    printf '%s: as expected\n' "$1"
}

drawing=$work/boxes.fodg
cp "$folder/boxes.fodg" "$drawing"

expect "What the panel shows" 'boxes.fodg: 1/1 rect "Raised": Card

Shadow: Card
  ○  Visible                Yes      inherited from Card
  ●  Colour                 #264653  local
  ○  Distance to the right  2 mm     inherited from Card
  ○  Distance downwards     3 mm     inherited from Card
  ○  Transparency           40 %     inherited from Card' \
    "$(cd "$work" && "$tool" inspect boxes.fodg --select name:Raised --panels "$panels")"

expect "The title of a shadow that nobody sees" 'Shadow: Flat (hidden)' \
    "$("$tool" inspect "$drawing" --select name:Lying --panels "$panels" | sed -n 3p)"

"$tool" set "$drawing" --select name:Raised shadow.distance-x=5mm shadow.transparency=25% \
    --panels "$panels" --in-place >"$work/report"
expect "What is saved" \
    '      <style:graphic-properties draw:shadow-color="#264653" draw:shadow-offset-x="5mm" draw:shadow-opacity="75%"/>' \
    "$(grep -F '#264653' "$drawing")"

"$tool" presets add "$drawing" Deep --panel shadow --select name:Raised --panels "$panels" >"$work/report"
"$tool" presets apply "$drawing" Deep --panel shadow --select name:Lying --panels "$panels" --in-place >"$work/report"
expect "A shadow that a preset brought" 'Shadow: Flat
  ●  Visible                Yes      local
  ●  Colour                 #264653  local
  ●  Distance to the right  5 mm     local
  ●  Distance downwards     3 mm     local
  ●  Transparency           25 %     local' \
    "$("$tool" inspect "$drawing" --select name:Lying --panels "$panels" | tail -n +3)"
