#!/usr/bin/env bash
# Works the program's other windows by keyboard, on a screen in memory: the web's tree, the commands of the window's menus, the
# web that was open last, and both editors alone. Leaves a picture of each stage in OUT, to be looked at, and fails unless
# one page has another theme and nothing else of the web has changed.
# usage: scripts/walk_web.sh [OUT [PRESET]]      (default: out/web, release)
set -euo pipefail
source "$(dirname "$0")/walk_screen.sh"

start 6 "$work/larkfell"
press 1 End Return                        # the last page of the tree opens
press 1 F5 F6 F6 F8 shift+F8 F8
picture 1-page
press 2 alt+o p                           # Format, Theme of This Page...
picture 2-theme-of-page
press 1 alt+t End Return
picture 3-given
press 1 Return
press 2 alt+f h                           # File, Recalculate Hyperlinks
picture 4-recalculated
press 1 Return
press 1 F1                                # no browser is there: the window says so
press 1 Return
press 1 alt+h a                           # Help, About Morpho
picture 5-about
press 1 Return
press 1 alt+Left
press 1 ctrl+w ctrl+w
press 2 ctrl+o                            # Open Web..., given up
picture 6-open
press 1 Escape
press 3 alt+f r 1                         # Recent Webs, the first
picture 7-recent
finish

start 6                                   # the web that was open last
picture 8-last
finish

start 4 theme "$work/larkfell" --theme orrery
press 2 Return                            # the About box
press 2 Return                            # the quick reference
picture 9-theme
press 2 alt+c
wait $program

start 4 image "$work/larkfell" --page index.htm --select 1
press 2 Return                            # the About box
picture 10-image
press 2 alt+c
wait $program

changed=$(diff -rq samples/larkfell "$work/larkfell" || true)
echo "$changed"
[ "$(wc -l <<<"$changed")" -eq 1 ] && grep -q "\.htm" <<<"$changed"
echo "One page has another theme, and nothing else of the web has changed. The pictures are in $out."
