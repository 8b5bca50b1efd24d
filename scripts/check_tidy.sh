#!/usr/bin/env bash
# Runs clang-tidy on the sources of src/ that are built here, or on those that are named. .clang-tidy says which checks, and
# why some are off.
# usage: scripts/check_tidy.sh [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install_packages.sh scripts/packages_tidy.txt
cmake --preset debug >/dev/null
if [ $# -eq 0 ]; then
    mapfile -t files < <(sed -n 's|^ *"file": "\(.*\)",\?$|\1|p' build/debug/compile_commands.json | grep "^$PWD/src/")
    set -- "${files[@]}"
fi
echo "== clang-tidy on $# files"
# Each says how many warnings it has not shown.
printf '%s\0' "$@" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/debug --quiet 2> >(grep -vE '^[0-9]+ warnings? generated' >&2 || true)
