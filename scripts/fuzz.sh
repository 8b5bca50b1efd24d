#!/usr/bin/env bash
# Runs fuzz targets on their seeds and on what grows out of them, which is kept in build/corpus/. What ends a target is
# written to build/found/ and should become a seed. Prints executions, covered edges and the corpus of each.
# usage: scripts/fuzz.sh [SECONDS [TARGET...]]      (default: 30 seconds for each of all targets)
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-30}
if [ $# -gt 1 ]; then targets=("${@:2}"); else mapfile -t targets < <(sed -n 's/^fuzz_target(\([a-z]*\) .*/\1/p' fuzz/CMakeLists.txt); fi

scripts/install_packages.sh scripts/packages_fuzz.txt
cmake --preset fuzz >/dev/null
cmake --build build/fuzz --target "${targets[@]/#/fuzz_}"
mkdir -p build/found
# Each seed again and again, up to a megabyte: what is quadratic does not show in short inputs.
long_inputs() { # TARGET
    local seed long
    mkdir -p "build/long/$1"
    for seed in "fuzz/seeds/$1"/*; do
        long=build/long/$1/${seed##*/}
        cp "$seed" "$long"
        while [ "$(stat -c %s "$long")" -lt 500000 ]; do
            cat "$long" "$long" >"$long.next"
            mv "$long.next" "$long"
        done
    done
}
for target in "${targets[@]}"; do
    mkdir -p "build/corpus/$target"
    echo "== Fuzzing ($target)"
    long_inputs "$target"
    # 5 seconds for one input of a megabyte: what is not linear does not pass.
    "build/fuzz/bin/fuzz_$target" -runs=0 -max_len=1000000 -timeout=5 -artifact_prefix="$PWD/build/found/$target-" "build/long/$target" \
        >"build/found/$target.log" 2>&1 || { tail -30 "build/found/$target.log" >&2; exit 1; }
    "build/fuzz/bin/fuzz_$target" -max_total_time="$seconds" -max_len=1000000 -timeout=5 -rss_limit_mb=3000 -print_final_stats=1 \
        -dict="fuzz/dictionaries/$target.txt" -artifact_prefix="$PWD/build/found/$target-" "build/corpus/$target" "fuzz/seeds/$target" \
        >"build/found/$target.log" 2>&1 || { tail -30 "build/found/$target.log" >&2; exit 1; }
    grep -E 'stat::number_of_executed_units|cov: ' "build/found/$target.log" | tail -2
done
