#!/usr/bin/env bash
# Works the program's window by keyboard alone, on a screen in memory: opens Theme Morpho through the Format menu,
# recolours the sample web's theme, saves it as a new one, applies it and closes the editor. Leaves a picture of each
# stage in OUT, to be looked at, and fails unless the web has the new theme and its home page uses it.
# usage: scripts/walk_window.sh [OUT [PRESET]]      (default: out/window, release)
set -euo pipefail
source "$(dirname "$0")/walk_screen.sh"
start 5 "$work/larkfell"

picture 1-web
press 2 alt+o t        # Format, Theme Morpho...
press 2 Return         # the About box
press 2 Return         # the quick reference
press 2 alt+t End      # the theme "Orrery"
picture 2-editor
press 2 alt+h Page_Up  # the hue; the theme has JPEG pictures
picture 3-quality
press 1 Return
press 2 Page_Up Page_Up Page_Up Page_Up Page_Up Page_Up Page_Up Page_Up
press 2 alt+a          # Apply
picture 4-recoloured
press 1 alt+v alt+a    # Save As..., Apply to entire web
picture 5-save-as
press 4 Return
picture 6-saved
press 1 Return         # "Theme saved."
press 2 alt+c          # Close
picture 7-page
finish
grep -q "_themes/orrery2/" "$work/larkfell/index.htm"
cmp -s "$work/larkfell/_themes/orrery/orrbnra.gif" "$work/larkfell/_themes/orrery2/orrbnra.gif" && exit 1
echo "The web has the theme orrery2 and its home page uses it. The pictures are in $out."
