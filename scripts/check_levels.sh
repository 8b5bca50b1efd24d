#!/usr/bin/env bash
# Checks the levels of src/ against src/levels.txt: a folder includes only folders of lower levels, or a sibling it is
# built on; and the folders that run anywhere include no system header and ask no system by #if. src/README.md names every
# folder with its level. Prints every offence; exit status 1 if there is one.
set -euo pipefail
cd "$(dirname "$0")/../src"

declare -A may level system
every_system='Linux Windows'
systems=
while read -r line; do
    case $line in
    '#'* | '') ;;
    'system '*) systems=${line#system } ;;
    *)
        folder=${line#* }
        folder=${folder%%:*}
        level[$folder]=${line%% *}
        may[$folder]=${line#*:}
        system[$folder]=$systems
        ;;
    esac
done <levels.txt
standard='^(algorithm|any|array|atomic|bit|bitset|cctype|cerrno|charconv|chrono|cinttypes|climits|cmath|compare|concepts|condition_variable|csetjmp|cstddef|cstdint|cstdio|cstdlib|cstring|deque|exception|filesystem|format|fstream|functional|future|initializer_list|iomanip|ios|iosfwd|iostream|istream|iterator|limits|list|map|memory|mutex|new|numbers|numeric|optional|ostream|queue|random|ranges|set|span|sstream|stack|stdexcept|string|string_view|system_error|thread|tuple|type_traits|typeinfo|unordered_map|unordered_set|utility|variant|vector|version)$'

offences=0
offend() { echo "$1" >&2; offences=1; }

for folder in "${!level[@]}"; do
    grep -qE "^\| ${level[$folder]} \| \`$folder/\` " README.md || offend "src/README.md does not name $folder/ with its level"
    for lower in ${may[$folder]}; do
        [ "${level[$lower]}" -le "${level[$folder]}" ] || offend "src/levels.txt: $folder is below $lower"
    done
done
for folder in */; do
    folder=${folder%/}
    if [ -z "${level[$folder]+known}" ]; then offend "src/$folder has no level in src/levels.txt"; continue; fi
    while IFS=: read -r file line text; do
        if [[ $text =~ ^[[:space:]]*#[[:space:]]*include[[:space:]]*\"([a-z_0-9]+)/ ]]; then
            target=${BASH_REMATCH[1]}
            [ "$target" = "$folder" ] || [[ " ${may[$folder]} " == *" $target "* ]] ||
                offend "src/$file:$line: $folder must not include $target"
        elif [ -n "${system[$folder]}" ]; then
            continue
        elif [[ $text =~ include[[:space:]]*\<([^\>]+)\> ]]; then
            header=${BASH_REMATCH[1]}
            [[ $header =~ $standard ]] || { [ "$folder" = colorizer ] && [[ $header =~ ^j(peglib|error)\.h$ ]]; } ||
                offend "src/$file:$line: $folder must not include <$header>"
        elif [[ $text =~ (_WIN32|__linux__|__APPLE__|__unix__) ]]; then
            offend "src/$file:$line: $folder must not ask for the system"
        fi
    done < <(grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*(include|if|ifdef|ifndef|elif)' "$folder" || true)
done
# The toolkits of two systems have much the same headers, and never meet.
while read -r on header; do
    offend "Two headers of src/ are named $header on $on"
done < <(find . -name '*.h' | while IFS=/ read -r _ folder path; do
    for on in ${system[$folder]:-$every_system}; do echo "$on ${path##*/}"; done
done | sort | uniq -d)
# <windows.h> makes macros of names that are also ours: one header includes it, and takes them back.
while IFS=: read -r file line _; do
    offend "src/$file:$line: only windows_system/win32.h includes <windows.h>"
done < <(grep -rniE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include[[:space:]]*<windows\.h>' . | sed 's|^\./||' |
    grep -v '^windows_system/win32\.h:')
[ $offences -eq 0 ] && echo "Levels: every include of src/ goes down."
exit $offences
