#!/usr/bin/env bash
# Inspects the DLLs and the program that a preset for Windows has built: machine, imports, exports, version, manifest. What
# is not as it should be is printed; exit status 1 then.
# usage: scripts/check_windows_files.sh PRESET
set -euo pipefail
cd "$(dirname "$0")/.."

# Files are read as bytes.
export LC_ALL=C
preset=${1:-}
case $preset in
windows-x64) objdump=x86_64-w64-mingw32-objdump format=pei-x86-64 ;;
windows-x86) objdump=i686-w64-mingw32-objdump format=pei-i386 ;;
*) echo "usage: scripts/check_windows_files.sh windows-x64|windows-x86" >&2; exit 2 ;;
esac
version=$(sed -n 's/^project(morpho VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
# What every Windows has. The C runtime is the system's own; that of the compiler is linked in.
system=' advapi32 comctl32 comdlg32 gdi32 gdiplus kernel32 msimg32 msvcrt ole32 oleaut32 rpcrt4 shcore shell32 shlwapi user32 uuid uxtheme version windowscodecs '
entries=$'DllCanUnloadNow\nDllGetClassObject\nDllRegisterServer\nDllUnregisterServer'

offences=0
offend() { echo "$preset: $1" >&2; offences=1; }

# inspect FILE EXPORTS
inspect() {
    local file=build/$preset/bin/$1 about import
    [ -f "$file" ] || { offend "$1 was not built"; return; }
    about=$("$objdump" -f -p "$file")
    grep -q "file format $format\$" <<<"$about" || offend "$1 is not for this machine"
    while read -r import; do
        import=${import,,}
        [[ $system == *" ${import%.dll} "* ]] || offend "$1 imports $import"
    done < <(sed -n 's/^\s*DLL Name: //p' <<<"$about")
    local exports
    exports=$(sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\s*\[ *[0-9]*\] //p' <<<"$about" | sort)
    [ "$exports" = "$2" ] || offend "$1 exports ${exports//$'\n'/, }"
    # Version texts stand in the file as UTF-16.
    grep -qaP "$(printf 'ProductVersion' | sed 's/./&\\x00/g')(\x00)*$(printf '%s' "$version" | sed 's/[0-9]/&\\x00/g; s/\./\\.\\x00/g')\x00\x00" "$file" ||
        offend "$1 does not tell version $version"
}

inspect Colorizer.dll "$entries"
inspect Morpho.dll "$entries"
inspect morpho.exe ''
for file in Morpho.dll morpho.exe; do
    grep -qa 'Microsoft.Windows.Common-Controls' "build/$preset/bin/$file" || offend "$file has no manifest"
done
[ $offences -eq 0 ] && echo "Windows files: machine, imports, exports, version and manifest are right ($preset)."
exit $offences
