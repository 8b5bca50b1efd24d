#!/usr/bin/env bash
# usage: bench/run.sh [ROUNDS]     (default 5)
# Runs every measurement and prints one table: the figure behind each claim of speed and loss, and what it should be.
# bench/colorizer.sh also writes its own tables into bench/README.md.
set -euo pipefail
cd "$(dirname "$0")/.."
rounds=${1:-5}
CLAIMS=$(mktemp)
export CLAIMS
trap 'rm -f "$CLAIMS"' EXIT

for measurement in "colorizer.sh $rounds" "pictures.sh 100 $rounds" "save.sh $rounds" "web_pages.sh 2000 $rounds" \
    web_window.sh editors.sh "history.sh 10 30 90" "large_inputs.sh 3" css_agreement.sh; do
    echo "== $measurement" >&2
    # shellcheck disable=SC2086
    bench/$measurement >&2
done
printf '%s cores, %s; medians of %s rounds.\n\n' "$(nproc)" \
    "$(awk -F': ' '/^model name/ { print $2; exit }' /proc/cpuinfo)" "$rounds"
printf '| what | figure | aim |\n| --- | --- | --- |\n'
cat "$CLAIMS"
