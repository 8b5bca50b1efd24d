#!/usr/bin/env bash
# Opens every window and dialog of the editors in Wine, at 96 and at 192 pixels an inch, and takes a picture of each:
# FOLDER/96/frmThemeMorpho.png and so on; FOLDER/96/theme.png is Theme Morpho with a theme. Uses a Wine prefix and a screen
# of its own. Needs the preset windows-x64 built.
# usage: scripts/look_windows.sh FOLDER
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -ge 1 ] || { echo "usage: scripts/look_windows.sh FOLDER" >&2; exit 2; }
mkdir -p "$1"
pictures=$1
program=build/windows-x64/bin/test_windows_toolkit.exe
morpho=build/windows-x64/bin/morpho.exe

prefix=$(mktemp -d)
exec {number}< <(exec Xvfb -displayfd 1 -screen 0 2200x1600x24 2>/dev/null)
screen=$!
read -r -u "$number" -t 30 display || { echo "Xvfb does not start." >&2; exit 1; }
in_wine() {
    env WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= WINEPREFIX="$prefix" WINEARCH=win64 DISPLAY=":$display" "$@"
}
trap 'in_wine wineserver -k || true; kill "$screen" || true; rm -rf "$prefix"' EXIT

in_wine wine wineboot -i >/dev/null 2>&1
# Without a window manager Wine would wait for one at each window.
in_wine wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
for dpi in 96 192; do
    in_wine wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d $dpi /f >/dev/null
    in_wine wineserver -k -w || true
    mkdir -p "$pictures/$dpi"
    MORPHO_LOOK="Z:$(realpath "$pictures/$dpi" | tr / '\\')" in_wine timeout 120 wine "$program" --gtest_brief=1 \
        --gtest_filter='EveryWindow.*'
    in_wine timeout 120 wine "$morpho" recolor samples/larkfell --theme orrery --select active --hue 40 --apply --hue 20 \
        --picture "$pictures/$dpi/theme.png" --export "$prefix/exported$dpi"
done
ls "$pictures"/*
