#!/usr/bin/env bash
# Installs what is missing and compiles the program and its tests for Windows, with the same warnings as errors. Checks
# besides that no portable header uses a name that <windows.h> redefines, and inspects what was built. Nothing is run.
# usage: scripts/check_windows.sh [PRESET...]      (default: windows-x64 windows-x86)
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install_packages.sh scripts/packages_windows.txt
scripts/build_windows_libjpeg.sh
if [ $# -eq 0 ]; then set -- windows-x64 windows-x86; fi
for preset; do
    echo "== Building ($preset)"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    scripts/check_windows_files.sh "$preset"
done
