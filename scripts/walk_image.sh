#!/usr/bin/env bash
# Works Image Morpho in the program's window, on a screen in memory: selects a picture of the sample web's home page by
# a click, opens the editor from the toolbar, moves the sliders by keyboard and saves. Leaves a picture of each stage in
# OUT, to be looked at, and fails unless exactly that picture of the web is another one.
# usage: scripts/walk_image.sh [OUT]      (default: out/image)
set -euo pipefail
cd "$(dirname "$0")/.."
out=${1:-out/image}
source scripts/walk_screen.sh
build/release/bin/morpho "$work/larkfell" &
sleep 6

click() { xdotool mousemove "$1" "$2" click 1; sleep 1; }
picture 1-web
click 1010 380 # the dome
picture 2-selected
click 145 119  # the toolbar's button
sleep 2
press 2 Return # the About box
picture 3-editor
press 2 alt+u Page_Up Page_Up Page_Up Page_Up
picture 4-recoloured
press 1 alt+s
picture 5-save
press 4 alt+y
picture 6-page
changed=$(diff -rq samples/larkfell "$work/larkfell" || true)
echo "$changed"
[ "$(wc -l <<<"$changed")" -eq 1 ] && grep -q "images/" <<<"$changed"
echo "The picture is recoloured, and nothing else of the web is. The pictures are in $out."
