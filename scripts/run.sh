#!/usr/bin/env bash
# Installs what is missing, builds, and opens Morpho on a web. Where there is no display it recolours the sample
# web's theme in a batch instead and draws the window off screen.
# usage: scripts/run.sh [WEB]      (default: the sample web)
set -euo pipefail
cd "$(dirname "$0")/.."
web=${1:-samples/larkfell}

scripts/install_packages.sh
echo "== Building (release)"
cmake --preset release >/dev/null
cmake --build --preset release --target morpho
morpho=build/release/bin/morpho

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "== Opening $web"
    exec "$morpho" "$web"
fi

echo "== No display: recolouring the sample web in a batch"
rm -rf out
mkdir out
QT_QPA_PLATFORM=offscreen "$morpho" recolor samples/larkfell --theme orrery \
    --select none --select active --hue 150 --apply \
    --select none --select normal --hue -60 --saturation 130 --apply \
    --export out/orrery --picture out/theme-morpho.png
echo "The recoloured theme is in out/orrery ($(ls out/orrery | wc -l) files), a picture of the window in out/theme-morpho.png."
