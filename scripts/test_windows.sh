#!/usr/bin/env bash
# Installs what is missing, builds for 64-bit and 32-bit Windows, and runs every test of both in Wine; compares what the
# program does with what it does on Linux, and installs and uninstalls it. What takes long is made once, in a folder of the
# user's cache. Needs no screen. The 32-bit half needs root, or sudo, for its mounts.
# usage: scripts/test_windows.sh [--x64-only]
set -euo pipefail
cd "$(dirname "$0")/.."

presets=(windows-x64 windows-x86)
case "${1:-}" in
--x64-only) presets=(windows-x64) ;;
'') ;;
*) echo "usage: scripts/test_windows.sh [--x64-only]" >&2; exit 2 ;;
esac

scripts/install_packages.sh scripts/packages_windows.txt
if [ ${#presets[@]} -eq 2 ]; then scripts/make_wine_x86.sh; fi
scripts/check_windows.sh "${presets[@]}"

# The windows of tests need a screen; the number of a free one comes back.
exec {number}< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 2>/dev/null)
screen=$!
trap 'kill "$screen" 2>/dev/null || true' EXIT
read -r -u "$number" -t 30 display || { echo "Xvfb does not start." >&2; exit 1; }
export DISPLAY=:$display
for preset in "${presets[@]}"; do
    target=$([ "$preset" = windows-x64 ] && echo x86_64 || echo i686)
    echo "== Starting Wine ($preset)"
    scripts/wine.sh "$target" wineboot
    # Without a window manager Wine would wait two seconds for one at each window.
    scripts/wine.sh "$target" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
    echo "== Testing ($preset)"
    ctest --preset "$preset"
done
echo "== Comparing with Linux"
scripts/same_bytes.sh "$@"
for preset in "${presets[@]}"; do
    echo "== Installing ($preset)"
    scripts/check_installer.sh "$([ "$preset" = windows-x64 ] && echo x86_64 || echo i686)"
done
