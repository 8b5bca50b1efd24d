#!/usr/bin/env bash
# Installs what is missing, checks formatting and levels, builds, and runs every test.
# usage: scripts/test.sh [debug | release | asan]      (asan: AddressSanitizer and UBSan; default: debug)
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-debug}

scripts/install_packages.sh
echo "== Checking formatting and levels"
scripts/check_format.sh
scripts/check_levels.sh
echo "== Building ($preset)"
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
echo "== Testing ($preset)"
ctest --preset "$preset"
