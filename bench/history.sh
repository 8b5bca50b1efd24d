#!/usr/bin/env bash
# usage: bench/history.sh [FEW MORE MOST]     (default 30 100 300)
# What long histories cost: batches of so many steps on the elements of the sample web's theme. Each step is coloured
# from the originals, through all steps before it: its time may grow as their number, and no faster. The time is that of
# the processor, which other programs disturb less.
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -eq 3 ] || set -- 30 100 300
source bench/whole_programs.sh

measured() { # STEPS: milliseconds for a step, and the peak of memory in MB
    local steps=() step
    for ((step = 1; step <= $1; step++)); do steps+=(--hue "$((step % 100 + 1))" --apply); done
    python3 -c '
import resource, subprocess, sys
subprocess.run(sys.argv[2:], check=True, stdout=subprocess.DEVNULL)
used = resource.getrusage(resource.RUSAGE_CHILDREN)
print("%.1f %.0f" % ((used.ru_utime + used.ru_stime) * 1000 / int(sys.argv[1]), used.ru_maxrss / 1024))' \
        "$1" "$morpho" recolor samples/larkfell --theme orrery "${steps[@]}" --export "$work/steps$1"
}

few=($(measured "$1"))
more=($(measured "$2"))
most=($(measured "$3"))
claim "a step of $1, of $2, of $3: processor time" \
    "${few[0]}, ${more[0]}, ${most[0]} ms: $(ratio "${most[0]}" "${more[0]}") times from $2 to $3" \
    "$(ratio "$3" "$2") or less"
claim "memory at most, with $1, $2, $3 steps" \
    "${few[1]}, ${more[1]}, ${most[1]} MB: $(ratio "${most[1]}" "${few[1]}") times" '1.1 or less'
