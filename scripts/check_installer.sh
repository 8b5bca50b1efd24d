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
registry() { # FILE: the user's settings, without what Wine itself counts up
    wine reg export 'HKEY_CURRENT_USER\Software' "$work/$1" /y >/dev/null
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
WScript.Echo("created " + colorizer.Hue);
JS
wine cscript //nologo "$work/create.js" | grep -q '^created 30' || fail "A script cannot create the component."
for add_in in AddInTM AddInIM; do
    wine reg query "HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\FrontPage\\Addins\\Morpho.$add_in" /v LoadBehavior |
        grep -q 0x3 || fail "$add_in is not registered."
done

# The uninstaller copies itself and goes on from there, unless it is told where it stands.
wine "$home\\uninstall.exe" /S "_?=$home" || fail "The uninstaller failed."
wine cmd /c "del \"$home\\uninstall.exe\" & rmdir \"$home\""
wine cmd /c "if exist \"$home\" exit 1" || fail "Files are left in $home."
registry after.reg
diff "$work/before.reg" "$work/after.reg" || fail "The registry is not as before."
echo "The installer of $machine passes."
