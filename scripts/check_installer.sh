#!/usr/bin/env bash
# Installs Morpho silently in Wine, uses it, and uninstalls it: the program runs, a script creates the component, the
# add-ins are registered; afterwards the registry is as before and no file of ours is left.
# usage: scripts/check_installer.sh x86_64|i686
set -euo pipefail
cd "$(dirname "$0")/.."
machine=${1:?usage: scripts/check_installer.sh x86_64|i686}
case $machine in
x86_64) folder=x64 setup=morpho-setup-x64.exe option=--x64 ;;
i686) folder=x86 setup=morpho-setup.exe option= ;;
*) echo "usage: scripts/check_installer.sh x86_64|i686" >&2; exit 2 ;;
esac

scripts/install_packages.sh scripts/packages_windows.txt
scripts/build_installer.sh $option
work=build/installer-$machine
rm -rf "$work"
mkdir "$work"

wine() { scripts/wine.sh "$machine" "$@" </dev/null; }
# FILE: the user's settings, without Wine's own; the list of installed programs may stay, empty.
registry() {
    wine reg export 'HKEY_CURRENT_USER\Software' "$work/export.reg" /y >/dev/null
    iconv -f UTF-16 -t UTF-8 "$work/export.reg" | tr -d '\r' |
        awk '/^\[/ { own = /Software\\Wine[\\\]]/ || /CurrentVersion\\Uninstall\]/ } !own && !/^$/' >"$work/$1"
}
fail() { echo "$1" >&2; exit 1; }
# A folder as Windows names it; Wine's output ends in CR LF.
windows_folder() { wine cmd /c "echo %LOCALAPPDATA%" | tr -d '\r'; }

registry before.reg
wine "build/$setup" /S || fail "The installer failed."
home="$(windows_folder)\\Programs\\Morpho"
wine "$home\\$folder\\morpho.exe" --version | grep -q '^morpho [0-9.]' || fail "The installed program does not run."
cat >"$work/create.js" <<'JS'
var colorizer = new ActiveXObject("Morpho.Colorizer");
colorizer.Hue = 30;
colorizer.SourceFile = "C:\\a.gif";
WScript.Echo("created for " + colorizer.SourceFile);
JS
# Windows looks for classes among those of the user, too; this Wine does not: they are shown to it.
classes='Software\Classes'
shown=('Morpho.Colorizer' 'CLSID\{2142EA3D-D6D1-4C75-996B-A6D999AFD65F}')
for key in "${shown[@]}"; do
    wine reg copy "HKEY_CURRENT_USER\\$classes\\$key" "HKEY_LOCAL_MACHINE\\$classes\\$key" /s /f >/dev/null ||
        fail "$key is not registered."
done
wine cscript //nologo "Z:${PWD//\//\\}\\${work//\//\\}\\create.js" | grep -q '^created for C:.a.gif' || fail "A script cannot create the component."
for key in "${shown[@]}"; do wine reg delete "HKEY_LOCAL_MACHINE\\$classes\\$key" /f >/dev/null; done
for add_in in AddInTM AddInIM; do
    wine reg query "HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\FrontPage\\Addins\\Morpho.$add_in" /v LoadBehavior |
        grep -q 0x3 || fail "$add_in is not registered."
done

# The uninstaller copies itself and goes on from there, unless it is told where it stands.
wine "$home\\uninstall.exe" /S "_?=$home" || fail "The uninstaller failed."
wine cmd /c "if exist \"$home\" exit 1" || fail "Files are left in $home."
registry after.reg
diff "$work/before.reg" "$work/after.reg" || fail "The registry is not as before."
echo "The installer of $machine passes."
