#!/usr/bin/env bash
# Works Image Morpho in the program's window, on a screen in memory: selects a picture of the sample web's home page,
# opens the editor from the Format menu, moves the sliders and saves, all by keyboard. Leaves a picture of each stage in
# OUT, to be looked at, and fails unless exactly that picture of the web is another one.
# usage: scripts/walk_image.sh [OUT [PRESET]]      (default: out/image, release)
set -euo pipefail
source "$(dirname "$0")/walk_screen.sh"
start 6 "$work/larkfell"

picture 1-web
press 1 F8 F8          # the second picture of the page
picture 2-selected
press 2 alt+o i        # Format, Image Morpho...
press 2 Return         # the About box
picture 3-editor
press 2 alt+u Page_Up Page_Up Page_Up Page_Up
picture 4-recoloured
press 1 alt+s
picture 5-save
press 4 alt+y
picture 6-page
finish
changed=$(diff -rq samples/larkfell "$work/larkfell" || true)
echo "$changed"
[ "$(wc -l <<<"$changed")" -eq 1 ] && grep -q "images/" <<<"$changed"
echo "The picture is recoloured, and nothing else of the web is. The pictures are in $out."
