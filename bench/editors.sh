#!/usr/bin/env bash
# usage: bench/editors.sh
# What a person waits for in the editors' windows: the window with its preview, and new colours after a slider has
# settled, in the theme's preview and in a picture of 12 megapixels. Off screen.
set -euo pipefail
cd "$(dirname "$0")/.."
source bench/whole_programs.sh
cmake --build build/release --target bench_window bench_image bench_make_inputs >/dev/null
export QT_QPA_PLATFORM=offscreen

build/release/bin/bench_make_inputs "$work"
claims() { # AIM...: of the lines "what: figure" on standard input, one after the other
    local aim what figure
    for aim; do
        IFS=: read -r what figure
        claim "$what" "${figure# }" "$aim"
    done
}
build/release/bin/bench_window samples/larkfell orrery >/dev/null 2>&1 # the first run fills the caches
build/release/bin/bench_window samples/larkfell orrery 2>/dev/null | claims - 'median of 50 ms'
build/release/bin/bench_image "$work/jpeg/420.jpg" 2>/dev/null | claims 'median of 250 ms'
