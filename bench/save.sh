#!/usr/bin/env bash
# usage: bench/save.sh [ROUNDS]     (default 9)
# What saving costs: a batch that recolours the sample web's theme of 38 elements and saves it as a new theme into the
# web, beside one that recolours it and copies its files to a folder. Whole processes, in turn; prints medians and their ratio.
set -euo pipefail
cd "$(dirname "$0")/.."
rounds=${1:-9}
source bench/whole_programs.sh

recolour() { "$morpho" recolor "$1" --theme orrery --hue 60 --apply "${@:2}"; }

# Nothing is deleted between the rounds: a file system takes longer to create files right after many were deleted.
for ((round = 0; round <= rounds; round++)); do cp -r samples/larkfell "$work/web$round"; done
timed first recolour "$work/web0" --save-as first # the first save of all makes the user's folders
for ((round = 1; round <= rounds; round++)); do
    timed export recolour "$work/web$round" --export "$work/out$round"
    timed save recolour "$work/web$round" --save-as "night$round" --title "Night $round" --apply-to-web
done
claim 'saving as a new theme, beside recolouring and copying it' \
    "$(median save) ms to $(median export) ms: $(ratio "$(median save)" "$(median export)") times the time" '1.5 or less'
