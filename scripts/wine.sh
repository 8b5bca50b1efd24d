#!/usr/bin/env bash
# Runs a Windows program in Wine, with a prefix of its own: 64-bit ones in Debian's Wine, 32-bit ones in the Wine of a
# 32-bit Debian that scripts/make_wine_x86.sh makes. The mounts that this needs end with the program.
# usage: scripts/wine.sh x86_64|i686 PROGRAM [ARGUMENT...]
set -euo pipefail
. "$(dirname "$0")/windows_cache.sh"
tree=$(cd "$(dirname "$0")/.." && pwd -P)
target=$1
shift

# Wine's own messages are off, and so are .NET and HTML, which it would offer to download, and what would put programs into
# the menus of the person's own desktop.
wine=(env WINEDEBUG=-all 'WINEDLLOVERRIDES=mscoree,mshtml=;winemenubuilder.exe=d')
if [ "$target" = x86_64 ]; then exec "${wine[@]}" WINEPREFIX="$windows_cache/prefix" WINEARCH=win64 wine "$@"; fi

# shellcheck disable=SC2016
exec "${as_root[@]}" unshare --mount --propagation private bash -c '
    set -euo pipefail
    debian=$1 tree=$2 folder=$3
    shift 3
    mkdir -p "$debian$tree" "$debian/tmp/.X11-unix"
    mount -t proc proc "$debian/proc"
    mount --rbind /dev "$debian/dev"
    mount --bind "$tree" "$debian$tree"
    if [ -d /tmp/.X11-unix ]; then mount --bind /tmp/.X11-unix "$debian/tmp/.X11-unix"; fi
    exec chroot "$debian" env -C "$folder" "$@"
' bash "$windows_cache/i386" "$tree" "$PWD" "${wine[@]}" HOME=/root WINEPREFIX=/root/prefix WINEARCH=win32 \
    DISPLAY="${DISPLAY:-}" wine "$@"
