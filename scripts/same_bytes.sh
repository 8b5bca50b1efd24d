#!/usr/bin/env bash
# Runs the same batch commands on Linux with morpho, and in Wine with the 64-bit and the 32-bit morpho.exe, each on a copy
# of the sample web, and compares what they print, their exit statuses, the webs, the pictures, the user's own themes and
# what is kept for the web, byte for byte. Prints every difference; exit status 1 if there is one.
# usage: scripts/same_bytes.sh [--x64-only]
#
# Paths alone are made equal before, for they must differ: in what is printed, a path below the folder of the run, or the
# user's themes, begins with a word in capitals and has "/" between its names; and the folder that is kept for a web loses
# the digits in its name, which are made from the path of the web.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/windows_cache.sh
tree=$PWD
results=$tree/build/same_bytes

presets=(windows-x64 windows-x86)
case "${1:-}" in
--x64-only) presets=(windows-x64) ;;
'') ;;
*) echo "usage: scripts/same_bytes.sh [--x64-only]" >&2; exit 2 ;;
esac
for preset in debug "${presets[@]}"; do
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" --target morpho >/dev/null
done
# Wine turns arguments and names of files into Unicode as the locale says.
export LC_ALL=C.UTF-8

# Where the user's data is on a platform: its own themes, then what is kept for webs.
data_of() {
    case $1 in
    linux) echo "$results/linux/data/morpho/AppData/Microsoft/Themes" "$results/linux/data/morpho/webs" ;;
    x86_64) windows_data_of "$windows_cache/prefix" "$(id -un)" ;;
    i686) windows_data_of "$windows_cache/i386/root/prefix" root ;;
    esac
}
windows_data_of() {
    local user=$1/drive_c/users/$2/AppData
    echo "$user/Roaming/Microsoft/Themes" "$user/Local/Morpho/webs"
}

# A path of the disk as Windows writes it.
windows_path() { printf 'Z:%s' "${1//\//\\}"; }

# The same by way of a share. Wine looks for a share in a folder of its prefix.
share_path() { printf '\\\\morpho\\disk%s' "${1//\//\\}"; }
make_share() { # platform, prefix
    # Wine makes no prefix where something is already.
    scripts/wine.sh "$1" cmd /c exit
    "${as_root[@]}" mkdir -p "$2/dosdevices/unc/morpho"
    "${as_root[@]}" ln -sfn / "$2/dosdevices/unc/morpho/disk"
}

# Runs morpho on the platform; "@" at the beginning of an argument is the folder of the run, "//" the same on a share.
run() { # platform, argument...
    local platform=$1 folder=$results/$1 arguments=() argument
    shift
    for argument; do
        if [[ $argument == @* ]]; then
            argument=$folder${argument#@}
            [ "$platform" = linux ] || argument=$(windows_path "$argument")
        elif [[ $argument == //* ]]; then
            argument=$folder${argument#/}
            [ "$platform" = linux ] || argument=$(share_path "$argument")
        fi
        arguments+=("$argument")
    done
    case $platform in
    linux)
        XDG_DATA_HOME=$folder/data XDG_CACHE_HOME=$folder/cache build/debug/bin/morpho "${arguments[@]}" ;;
    x86_64) scripts/wine.sh x86_64 build/windows-x64/bin/morpho.exe "${arguments[@]}" ;;
    i686) scripts/wine.sh i686 build/windows-x86/bin/morpho.exe "${arguments[@]}" ;;
    esac
}

with_equal_paths() { # platform
    local root=$results/$1 themes
    read -r themes _ <<<"$(data_of "$1")"
    if [ "$1" = linux ]; then
        sed -e "s|$themes|THEMES|g" -e "s|$root|ROOT|g"
        return
    fi
    root=$(windows_path "$root")
    themes="C:${themes#*/drive_c}"
    themes=${themes//\//\\}
    # JSON doubles each "\".
    local plain quoted name script=
    for name in SHARE ROOT THEMES; do
        case $name in
        SHARE) plain=$(share_path "$results/$1") ;;
        ROOT) plain=$root ;;
        THEMES) plain=$themes ;;
        esac
        plain=${plain//\\/\\\\}
        quoted=${plain//\\/\\\\}
        script+="s|$quoted|${name/SHARE/ROOT}|g;s|$plain|${name/SHARE/ROOT}|g;"
    done
    sed -E -e "$script" -e ':again; s#((ROOT|THEMES)[^"\\]*)\\\\?#\1/#; t again'
}

number=0
step() { # argument...
    number=$((number + 1))
    local status=0 file=$results/$platform/printed/$(printf %02d "$number")
    run "$platform" "$@" >"$file.out.raw" 2>"$file.err.raw" </dev/null || status=$?
    {
        printf 'morpho'
        printf ' %q' "$@"
        printf '\nexit status %s\n' $status
    } >"$file.status"
    for stream in out err; do
        with_equal_paths "$platform" <"$file.$stream.raw" >"$file.$stream"
        rm "$file.$stream.raw"
    done
}

# What a person may ask for in a batch, on the web as the steps before have left it.
steps() {
    local orrery=(recolor @/web --theme orrery)
    step --help
    step recolor --help
    step list @/web
    step list @/web --json
    step "${orrery[@]}" --hue 120 --apply --json --export @/out/exported
    step "${orrery[@]}" --select none,active --hue 60 --apply --select normal --saturation 30 --apply \
        --undo --brightness 80 --apply --undo --redo --json --export @/out/undone
    step "${orrery[@]}" --quality 90 --hue -40 --apply --hue 90 --apply --undo --json --export @/out/quality
    step "${orrery[@]}" --hue 33 --apply --save --dry-run
    step "${orrery[@]}" --hue 33 --apply --save --json
    step "${orrery[@]}" --hue 170 --apply --save
    step "${orrery[@]}" --saturation 50 --apply --save-as night --title 'Nächtliches Orrery – 5 €' --json
    step "${orrery[@]}" --brightness 120 --apply --save-as polar --title 'Полярная ночь' --json
    step apply @/web --theme night
    step "${orrery[@]}" --hue 10 --apply --save-as dusk --apply-to-web --dry-run
    step recolor @/web --theme night --hue 60 --apply --save-as auto --apply-to-web --json
    step apply @/web --theme orrery --in-place-of almanac
    step recolor @/web --theme orrery --hue 90 --apply --save-as dawn --apply-to-web --apply-to-pages --json
    step apply @/web --theme almanac --in-place-of dawn
    step recolor @/web --theme almanac --hue 180 --apply --save-as Polar2 --apply-to-web --json
    step list @/web --json
    step recolor '@/Сеть ü' --theme almanac --hue 45 --apply --save-as ö --apply-to-web --json
    step list '@/Сеть ü' --theme ö
    step recolor @/web/images/logo.gif @/web/images/dome.jpg --hue 90 --quality 85 --output-dir @/out/pictures --json
    step list //web
    step recolor //web --theme orrery --hue 77 --apply --save-as shared --apply-to-web --json
    step recolor //web --theme shared --hue 7 --apply --export //out/shared --json
    step recolor //web/images/logo.gif --hue 7 --output //out/logo.gif --json
    step recolor //web/images/dome.jpg --hue 7 --in-place --json
    step recolor @/web/images/dome.jpg --saturation 20 --output @/out/größe-ночь.jpg
    step recolor @/out/größe-ночь.jpg --brightness 70 --in-place --json
    step recolor @/web/images/logo.gif @/web/none.gif @/web/index.htm --hue 5 --output-dir @/out/pictures --json
    # What is refused.
    step nonsense
    step list @/nowhere
    step list
    step recolor @/web --theme orrery --hue 181 --export @/out/refused
    step recolor @/web --theme nonsense --apply --export @/out/refused
    step recolor @/web --theme almanac --hue 9 --apply --save
    step recolor @/web --theme orrery --save-as ORRERY
    step recolor @/web --theme orrery --undo --export @/out/refused
    step recolor @/web --theme orrery --apply --export @/out/exported
    step recolor @/web/images/logo.gif --hue 5 --output @/web/images/dome.jpg
    step apply @/web --theme nonsense
    step apply @/web --theme orrery --in-place-of nonsense
}

start_afresh() {
    local folder
    "${as_root[@]}" rm -rf "${results:?}/$platform"
    mkdir -p "$results/$platform/printed" "$results/$platform/out"
    for folder in web 'Сеть ü'; do cp -r samples/larkfell "$results/$platform/$folder"; done
    for folder in $(data_of "$platform"); do "${as_root[@]}" rm -rf "$folder"; done
    case $platform in
    x86_64) make_share x86_64 "$windows_cache/prefix" ;;
    i686) make_share i686 "$windows_cache/i386/root/prefix" ;;
    esac
}

collect() {
    local themes webs web
    read -r themes webs <<<"$(data_of "$platform")"
    "${as_root[@]}" cp -r "$themes" "$results/$platform/themes"
    mkdir "$results/$platform/kept"
    for web in "$webs"/*; do
        "${as_root[@]}" cp -r "$web" "$results/$platform/kept/$(basename "$web" | sed -E 's/-[0-9a-f]{16}$//')"
    done
    rm -rf "$results/$platform"/{data,cache}
}

platforms=(linux x86_64)
if [ ${#presets[@]} -eq 2 ]; then platforms+=(i686); fi
for platform in "${platforms[@]}"; do
    echo "== Running ($platform)"
    number=0
    start_afresh
    steps
    collect
done
different=0
for platform in "${platforms[@]:1}"; do
    diff -r "$results/linux" "$results/$platform" || different=1
done
[ $different -eq 0 ] && echo "Same bytes: $number commands, $(find "$results/linux" -type f | wc -l) files on each of ${platforms[*]}."
exit $different
