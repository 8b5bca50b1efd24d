#!/usr/bin/env bash
# usage: bench/web_window.sh [PAGES]     (default 2000)
# For how long at most the window does not answer while a large web is opened, gets another theme, and is searched for
# broken addresses. Off screen.
set -euo pipefail
cd "$(dirname "$0")/.."
source bench/whole_programs.sh
source bench/large_web.sh
cmake --build build/release --target bench_web_window >/dev/null

make_large_web "$work/web" "${1:-2000}"
QT_QPA_PLATFORM=offscreen build/release/bin/bench_web_window "$work/web" almanac 2>/dev/null |
    while IFS=: read -r what figure; do
        claim "the window on a web of ${1:-2000} pages: $what" "${figure# }" '100 ms or less'
    done
