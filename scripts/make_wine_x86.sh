#!/usr/bin/env bash
# Makes the 32-bit Debian with the Wine that runs 32-bit programs, unless it is there. Debian's 32-bit Wine does not
# install beside the 64-bit one. Fails where the machine cannot run 32-bit programs.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/windows_cache.sh

debian=$windows_cache/i386
if [ ! -e "$debian/made" ]; then
    echo "== Making a 32-bit Debian for Wine"
    "${as_root[@]}" rm -rf "$debian"
    mkdir -p "$debian"
    # The log is shown where it matters.
    "${as_root[@]}" debootstrap --arch=i386 --variant=minbase --include=wine,wine32 --components=main \
        "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$debian" >"$windows_cache/debootstrap.log" 2>&1 ||
        { tail "$windows_cache/debootstrap.log" >&2; echo "The 32-bit Debian cannot be made." >&2; exit 1; }
    "${as_root[@]}" touch "$debian/made"
fi
"${as_root[@]}" chroot "$debian" /bin/true 2>/dev/null ||
    { echo "This machine cannot run 32-bit programs; scripts/test_windows.sh --x64-only leaves them out." >&2; exit 1; }
