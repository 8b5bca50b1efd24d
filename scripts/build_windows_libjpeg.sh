#!/usr/bin/env bash
# Builds libjpeg-turbo for 64-bit and 32-bit Windows from Debian's source package, static and with SIMD, unless it is
# there. Debian has no package of it for MinGW-w64.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/windows_cache.sh

work=$windows_cache/libjpeg-source
if [ -e "$windows_cache/x86_64/lib/libjpeg.a" ] && [ -e "$windows_cache/i686/lib/libjpeg.a" ]; then exit 0; fi
rm -rf "$work"
mkdir -p "$work/lists/partial" "$work/parts"

# The machine's own entries for this release of Debian, asked for sources; the user's apt is left as it is.
echo "== Fetching the source of libjpeg-turbo"
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ -e "$list" ] && sed -nE "s/^deb (.*[[:space:]]$release(-[a-z]+)?[[:space:]].*)/deb-src \1/p" "$list"
done >"$work/parts/debian.list"
for list in /etc/apt/sources.list.d/*.sources; do
    if [ -e "$list" ] && grep -qE "^Suites:(.*[[:space:]])?$release([[:space:]]|$)" "$list"; then
        sed 's/^Types:.*/Types: deb-src/' "$list" >"$work/parts/$(basename "$list")"
    fi
done
apt=(-qq -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$work/parts" -o "Dir::State::Lists=$work/lists"
    -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= -o APT::Sandbox::User=root)
apt-get "${apt[@]}" update
(cd "$work" && apt-get "${apt[@]}" source libjpeg-turbo >source.log 2>&1) ||
    { cat "$work/source.log" >&2; echo "The source of libjpeg-turbo cannot be fetched." >&2; exit 1; }

for target in x64:x86_64 x86:i686; do
    echo "== Building libjpeg-turbo (windows-${target%:*})"
    cmake -Wno-dev -G Ninja -S "$work"/libjpeg-turbo-*/ -B "$work/${target#*:}" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/windows-${target%:*}.cmake" -DCMAKE_INSTALL_PREFIX="$windows_cache/${target#*:}" \
        -DENABLE_SHARED=OFF -DWITH_TURBOJPEG=OFF -DREQUIRE_SIMD=ON >/dev/null
    cmake --build "$work/${target#*:}" --target install >/dev/null
done
rm -rf "$work"
