#!/usr/bin/env bash
# usage: bench/web_pages.sh [PAGES] [ROUNDS]     (default 2000 and 5)
# What a large web costs: opening it and listing its themes, giving all its pages another theme, and saving a recoloured
# theme into it, which also looks for broken addresses. Beside them a copy of the same web by cp -r, flushed as the
# program flushes its pages. Whole processes, in turn; prints medians and their ratios to the copy.
set -euo pipefail
cd "$(dirname "$0")/.."
pages=${1:-2000} rounds=${2:-5}
cmake --preset release >/dev/null
cmake --build build/release --target morpho >/dev/null
morpho=$PWD/build/release/bin/morpho
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export XDG_DATA_HOME=$work/data XDG_CACHE_HOME=$work/cache

cp -r samples/larkfell "$work/web"
for ((i = 0; i < pages; i++)); do
    folder=$work/web/part$((i / 100))
    mkdir -p "$folder"
    sed 's|_themes/|../_themes/|g' samples/larkfell/index.htm >"$folder/page$i.htm"
done

timed() { # NAME COMMAND...
    local name=$1 start
    shift
    start=$EPOCHREALTIME
    "$@" >/dev/null 2>&1
    echo $((${EPOCHREALTIME/./} - ${start/./})) >>"$work/$name"
}
median() { sort -n "$work/$1" | awk '{ value[NR] = $1 } END { printf "%.0f", value[int((NR + 1) / 2)] / 1000 }'; }
copied() { cp -r "$work/web" "$work/copy$1" && sync -f "$work/copy$1"; }

for ((round = 0; round < rounds; round++)); do
    timed copy copied "$round"
    timed list "$morpho" list "$work/web"
    timed apply "$morpho" apply "$work/copy$round" --theme almanac
    timed save "$morpho" recolor "$work/copy$round" --theme almanac --hue 60 --apply --save-as "new$round" --apply-to-web
done
for name in list apply save; do
    echo "$pages pages, $name: $(median "$name") ms; copy: $(median copy) ms;" \
        "ratio $(awk -v a="$(median "$name")" -v b="$(median copy)" 'BEGIN { printf "%.2f", a / b }')"
done
