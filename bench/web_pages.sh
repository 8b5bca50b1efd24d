#!/usr/bin/env bash
# usage: bench/web_pages.sh [PAGES] [ROUNDS]     (default 2000 and 5)
# What a large web costs: opening it and listing its themes, giving all its pages another theme, and saving a recoloured
# theme into it, which also looks for broken addresses. Beside them a copy of the same web by cp -r, flushed as the
# program flushes its pages. Whole processes, in turn; prints medians and their ratios to the copy.
set -euo pipefail
cd "$(dirname "$0")/.."
pages=${1:-2000} rounds=${2:-5}
source bench/whole_programs.sh
source bench/large_web.sh

make_large_web "$work/web" "$pages"

copied() { cp -r "$work/web" "$work/copy$1" && sync -f "$work/copy$1"; }

for ((round = 0; round < rounds; round++)); do
    timed copy copied "$round"
    timed list "$morpho" list "$work/web"
    timed apply "$morpho" apply "$work/copy$round" --theme almanac
    timed save "$morpho" recolor "$work/copy$round" --theme almanac --hue 60 --apply --save-as "new$round" --apply-to-web
done
for name in list apply save; do
    claim "a web of $pages pages: $name, beside cp -r" \
        "$(median "$name") ms to $(median copy) ms: $(ratio "$(median "$name")" "$(median copy)") times the time" '-'
done
