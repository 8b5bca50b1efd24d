#!/usr/bin/env bash
# Installs what is missing and compiles for 64-bit and 32-bit Windows what is bound to no system, with the same warnings
# as errors. Checks besides that no header there uses a name that <windows.h> redefines. Nothing of it is run.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install_packages.sh
for preset in windows-x64 windows-x86; do
    echo "== Compiling ($preset)"
    cmake --preset "$preset" --no-warn-unused-cli >/dev/null
    cmake --build --preset "$preset"
done
