#!/usr/bin/env bash
# Installs what is missing, checks formatting, levels and sizes, builds, runs every test, and checks the package.
# usage: scripts/test.sh [debug | release | asan]      (asan: AddressSanitizer and UBSan; default: debug)
#        scripts/test.sh --fuzz [SECONDS]      (every fuzz target for 30 seconds, or as many)
#        scripts/test.sh --coverage            (which lines and branches of src/ the tests run, by folder)
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" = --fuzz ]; then exec scripts/fuzz.sh "${@:2}"; fi
if [ "${1:-}" = --coverage ]; then exec scripts/coverage.py "${@:2}"; fi
preset=${1:-debug}

scripts/install_packages.sh
echo "== Checking formatting, levels and sizes"
scripts/check_format.sh
scripts/check_levels.sh
scripts/check_sizes.sh
echo "== Building ($preset)"
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
echo "== Testing ($preset)"
ctest --preset "$preset"
# A program under the sanitizers is not packaged.
if [ "$preset" != asan ]; then scripts/check_package.sh "$preset"; fi
