#!/usr/bin/env bash
# usage: bench/css_agreement.sh [SHEETS]     (default 20000)
# Our reading of style sheets beside that of the browser in Qt WebEngine: the sheets of the samples, the fuzz seeds, some
# that are odd, and this many sound ones with a few tokens changed by chance. Tells the sheets that differ.
set -euo pipefail
cd "$(dirname "$0")/.."
source bench/whole_programs.sh
cmake --build build/release --target bench_css_agreement >/dev/null

mapfile -t sheets < <(find samples fuzz/seeds/css -name '*.css')
QT_QPA_PLATFORM=offscreen build/release/bin/bench_css_agreement "${1:-20000}" "${sheets[@]}" >"$work/found" 2>/dev/null ||
    { cat "$work/found"; exit 1; }
claim "style sheets read as a browser reads them" "$(tail -1 "$work/found")" 'no difference'
