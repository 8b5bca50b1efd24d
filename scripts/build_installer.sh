#!/usr/bin/env bash
# Builds the programs for both Windows machines and puts them into build/morpho-setup.exe. With --x64, into one that runs
# where there are no 32-bit programs: build/morpho-setup-x64.exe.
# usage: scripts/build_installer.sh [--x64]
set -euo pipefail
cd "$(dirname "$0")/.."
target=x86-unicode output=build/morpho-setup.exe
case "${1:-}" in
--x64) target=amd64-unicode output=build/morpho-setup-x64.exe ;;
'') ;;
*) echo "usage: scripts/build_installer.sh [--x64]" >&2; exit 2 ;;
esac

scripts/check_windows.sh windows-x64 windows-x86
stripped=$(mktemp -d)
trap 'rm -rf "$stripped"' EXIT
for machine in x64:x86_64 x86:i686; do
    mkdir "$stripped/${machine%:*}"
    for file in morpho.exe Morpho.dll Colorizer.dll; do
        "${machine#*:}-w64-mingw32-strip" -o "$stripped/${machine%:*}/$file" "build/windows-${machine%:*}/bin/$file"
    done
done
version=$(sed -n 's/^project(morpho VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
makensis -V2 -DVERSION="$version" -DX86="$stripped/x86" -DX64="$stripped/x64" -DHELP="$PWD/docs/help" \
    -DOUTPUT="$PWD/$output" -DTARGET="$target" packaging/windows/morpho.nsi
echo "The installer is $output."
