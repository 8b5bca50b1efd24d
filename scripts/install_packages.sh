#!/usr/bin/env bash
# Installs those packages of scripts/packages.txt, and of the LISTs, that this machine lacks. Needs root, or sudo.
# usage: scripts/install_packages.sh [LIST...]
set -euo pipefail
cd "$(dirname "$0")/.."

missing=()
while read -r package; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done < <(grep -hv '^#' scripts/packages.txt "$@")

if [ ${#missing[@]} -eq 0 ]; then exit 0; fi
echo "== Installing ${missing[*]}"
root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Run this as root, or install these packages first." >&2; exit 1; }
    root=(sudo)
fi
"${root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
