#!/usr/bin/env bash
# usage: bench/save.sh [ROUNDS]     (default 9)
# What saving costs: a batch that recolours the sample web's theme of 38 elements and saves it as a new theme into the
# web, beside one that recolours it and copies its files to a folder. Whole processes, in turn; prints medians and their ratio.
set -euo pipefail
cd "$(dirname "$0")/.."
rounds=${1:-9}
cmake --preset release >/dev/null
cmake --build build/release --target morpho >/dev/null
morpho=$PWD/build/release/bin/morpho
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export XDG_DATA_HOME=$work/data XDG_CACHE_HOME=$work/cache

# Nothing is deleted between the rounds: a file system takes longer to create files right after many were deleted.
timed() { # NAME WEB ARGUMENT...
    local name=$1 web=$2 start
    shift 2
    start=$EPOCHREALTIME
    "$morpho" recolor "$web" --theme orrery --hue 60 --apply "$@" 2>/dev/null
    echo $((${EPOCHREALTIME/./} - ${start/./})) >>"$work/$name"
}
median() { sort -n "$work/$1" | awk '{ value[NR] = $1 } END { printf "%.1f", value[int((NR + 1) / 2)] / 1000 }'; }

for ((round = 0; round <= rounds; round++)); do cp -r samples/larkfell "$work/web$round"; done
timed first "$work/web0" --save-as first >/dev/null # the first save of all makes the user's folders
for ((round = 1; round <= rounds; round++)); do
    timed export "$work/web$round" --export "$work/out$round"
    timed save "$work/web$round" --save-as "night$round" --title "Night $round" --apply-to-web
done
echo "recolour and copy: $(median export) ms; recolour and save as a new theme: $(median save) ms;" \
    "ratio $(awk -v a="$(median save)" -v b="$(median export)" 'BEGIN { printf "%.2f", a / b }')"
