#!/usr/bin/env bash
# Checks the levels of src/: a folder includes only folders of lower levels, or a sibling it is built on; and
# the levels that run anywhere include no system header and ask no system by #if. Prints every offence; exit status 1 if there is one.
set -euo pipefail
cd "$(dirname "$0")/../src"

# folder: what it may include besides itself. src/README.md shows the levels.
declare -A may=(
    [platform]=""
    [forms]="platform"
    [resources]="platform"
    [shared]="platform forms"
    [colorizer]=""
    [frontpage]="platform forms shared"
    [about]="platform forms shared resources frontpage"
    [image_editor]="platform forms shared resources frontpage about"
    [theme_editor]="platform forms shared resources frontpage about image_editor"
    [addin]="platform forms shared resources frontpage about image_editor theme_editor"
    [desktop]="platform forms shared resources colorizer frontpage about image_editor theme_editor addin"
    [windows]="platform forms shared resources colorizer frontpage about image_editor theme_editor addin"
)
standard='^(algorithm|array|atomic|bit|bitset|cctype|cerrno|charconv|chrono|climits|cmath|compare|concepts|csetjmp|cstddef|cstdint|cstdio|cstdlib|cstring|deque|exception|filesystem|format|fstream|functional|initializer_list|iomanip|ios|iosfwd|iostream|istream|iterator|limits|list|map|memory|mutex|new|numbers|numeric|optional|ostream|queue|random|ranges|set|span|sstream|stack|stdexcept|string|string_view|system_error|thread|tuple|type_traits|typeinfo|unordered_map|unordered_set|utility|variant|vector|version)$'

offences=0
offend() { echo "$1" >&2; offences=1; }

for folder in */; do
    folder=${folder%/}
    if [ -z "${may[$folder]+known}" ]; then offend "src/$folder has no level in scripts/check_levels.sh"; continue; fi
    while IFS=: read -r file line text; do
        if [[ $text =~ ^[[:space:]]*#[[:space:]]*include[[:space:]]*\"([a-z_0-9]+)/ ]]; then
            target=${BASH_REMATCH[1]}
            [ "$target" = "$folder" ] || [[ " ${may[$folder]} " == *" $target "* ]] ||
                offend "src/$file:$line: $folder must not include $target"
        elif [ "$folder" = desktop ] || [ "$folder" = windows ]; then
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
[ $offences -eq 0 ] && echo "Levels: every include of src/ goes down."
exit $offences
