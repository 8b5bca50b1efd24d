#!/usr/bin/env bash
# Builds the Debian package, validates what is in it, unpacks it into a temporary folder, and runs the program from there.
# usage: scripts/check_package.sh [debug | release]      (default: release)
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-release}
umask 022  # CPack makes folders with it, and everybody must be able to read them

scripts/install_packages.sh
echo "== Packaging ($preset)"
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target installed_files
rm -f "build/$preset"/morpho_*.deb
cpack --preset "$preset" >/dev/null
package=$(realpath "build/$preset"/morpho_*.deb)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
dpkg-deb -x "$package" "$work/root"
share=$work/root/usr/share

echo "== Validating the package"
lintian --allow-root --fail-on error,warning "$package"
desktop-file-validate "$share"/applications/*.desktop
# The validator demands a free licence for this file, and the project states none: everything else is judged.
sed '/<metadata_license>/s/LicenseRef-proprietary/CC0-1.0/' "$share"/metainfo/*.metainfo.xml >"$work/morpho.metainfo.xml"
appstreamcli validate --no-net --strict "$work/morpho.metainfo.xml"

echo "== Running the installed program"
cp -r samples/larkfell "$work/web"
cd "$work"
morpho() {
    env -i HOME="$work/home" PATH=/usr/bin:/bin QT_QPA_PLATFORM=offscreen "$work/root/usr/bin/morpho" "$@"
}
mkdir home
morpho list web --theme orrery | grep "^normal/nav-banner-image " >/dev/null
morpho recolor web --theme orrery --hue 90 --apply --export out --picture window.png
unchanged=()
for picture in web/_themes/orrery/*.gif; do
    if cmp -s "$picture" "out/${picture##*/}"; then unchanged+=("$picture"); fi
done
[ ${#unchanged[@]} -eq 0 ] || { echo "Not recoloured: ${unchanged[*]}" >&2; exit 1; }
file window.png | grep -q 'PNG image data' || { echo "The picture of the window is no PNG file." >&2; exit 1; }
[ -f root/usr/bin/../share/doc/morpho/help/index.html ] || { echo "The help page is not where the program looks for it." >&2; exit 1; }
echo "The package is $package."
