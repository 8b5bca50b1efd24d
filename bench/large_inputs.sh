#!/usr/bin/env bash
# usage: bench/large_inputs.sh [ROUNDS]     (default 3)
# Whether each reader takes time in proportion to its input: whole programs on large inputs, and on a quarter of them.
# Four times the input may take up to six times as long: a cache of the processor holds the small one, not the large one.
set -euo pipefail
cd "$(dirname "$0")/.."
rounds=${1:-3}
# In memory: the waiting for a disk would hide what the readers do.
[ -d /dev/shm ] && export TMPDIR=/dev/shm
source bench/whole_programs.sh
cmake --build build/release --target replay_registry >/dev/null
megabyte=1000000
page_start='<html><head><meta name="Microsoft Theme" content="old 1011, default"></head><body>'

lines() { # BYTES LINE: the line again and again, with "&" as a number that grows, as often as it fits
    { seq 10000000 || true; } | { sed "s|.*|$2|" || true; } | head -c "$1" | sed '$d'
}
new_web() { # SIZE: a web with one theme and one page that takes the web's theme; prints its folder
    local web=$work/$kind$1
    mkdir -p "$web/_themes/large"
    printf '[info]\ntitle=Large\n' >"$web/_themes/large/large.inf"
    echo "$page_start" >"$web/index.htm"
    echo "$web"
}

make_sheet() {
    local theme
    theme=$(new_web "$1")/_themes/large
    printf '.mstheme { nav-banner-image: url(a.gif) }\n' >"$theme/theme.css"
    lines "$1" 'td.cell& > a:hover { color: rgb(16, 32, 48); background-image: url("a.gif"); margin: 0 4px }' >>"$theme/theme.css"
}
run_sheet() { "$morpho" list "$work/sheet$1" --theme large; }

make_profile() {
    lines "$1" 'key&=a value of the line &' >>"$(new_web "$1")/_themes/large/large.inf"
}
run_profile() { "$morpho" list "$work/profile$1"; }

make_page() {
    local web
    web=$(new_web "$1")
    lines "$1" '<p class=a&><img src="_themes/old/b&.gif" alt="\&quot;&\&quot;"><a href="page&.htm">Page &</a> < <!-- & -->' >>"$web/index.htm"
}
run_page() { "$morpho" apply "$work/page$1" --theme large; }

make_registry() {
    { printf 'Windows Registry Editor Version 5.00\n\n'
      lines "$1" '[HKEY_CURRENT_USER\\Software\\Key&]\n"name&"="value &"\n"number"=dword:0000002a\n"bytes"=hex:01,02,03'; } >"$work/registry$1"
}
run_registry() { build/release/bin/replay_registry "$work/registry$1"; }

make_gif() { # FRAMES of 1 x 1 pixel, each with a colour table of two; a power of two
    local frames
    printf '\x2c\0\0\0\0\1\0\1\0\x80\x10\x20\x30\x40\x50\x60\2\2\x44\1\0' >"$work/frames"
    for ((frames = 1; frames < $1; frames *= 2)); do
        cat "$work/frames" "$work/frames" >"$work/more"
        mv "$work/more" "$work/frames"
    done
    { printf 'GIF89a\1\0\1\0\0\0\0'; cat "$work/frames"; printf ';'; } >"$work/gif$1.gif"
}
run_gif() { "$morpho" recolor "$work/gif$1.gif" --hue 60 --output "$work/out.gif" --force; }

make_package() { # MEMBERS, of one byte; the user's own theme
    local theme=$XDG_DATA_HOME/morpho/AppData/Microsoft/Themes/packed$1
    mkdir -p "$theme"
    printf '[info]\ntitle=Packed\n' >"$theme/packed$1.inf"
    { printf 'theme\n%s\n' "$1"
      seq "$1" | sed 's/.*/a&.gif,1/'
      seq "$1" | sed 's/.*/<==MS-Theme==>x/' | tr -d '\n'; } >"$theme/packed$1.elm"
    new_web "$1" >/dev/null
}
run_package() {
    rm -rf "$work/package$1/_themes/packed$1"
    "$morpho" apply "$work/package$1" --theme "packed$1" --overwrite
}

make_files() { # FILES: a hundred in a folder
    local web
    web=$(new_web "$1")
    seq 0 $(($1 / 100 - 1)) | (cd "$web" && xargs mkdir)
    seq -w 0 $(($1 - 1)) | (cd "$web" && awk '{ print int((NR - 1) / 100) "/file" $0 ".txt" }' | xargs touch)
}
run_files() { "$morpho" apply "$work/files$1" --theme large; }

measure() { # KIND WHAT QUARTER WHOLE
    local size
    kind=$1
    for size in "$3" "$4"; do
        "make_$1" "$size"
        for ((round = 0; round < rounds; round++)); do timed "$1$size" "run_$1" "$size"; done
    done
    claim "$2, beside a quarter of it" \
        "$(median "$1$4") ms to $(median "$1$3") ms: $(ratio "$(median "$1$4")" "$(median "$1$3")") times the time" '6 or less'
}
measure sheet 'a style sheet of 20 MB: its theme is listed' $((5 * megabyte)) $((20 * megabyte))
claim 'the style sheet of 20 MB' "$(median sheet20000000) ms" '1000 ms or less'
measure profile 'a profile of 20 MB: its theme is listed' $((5 * megabyte)) $((20 * megabyte))
measure page 'a page of 16 MB: it gets another theme' $((4 * megabyte)) $((16 * megabyte))
measure registry 'a registry file of 20 MB: read, written, read again' $((5 * megabyte)) $((20 * megabyte))
measure gif 'a GIF of 131,072 frames: recoloured' 32768 131072
measure package 'a package of 32,767 members: unpacked into a web' 8191 32767
measure files 'a web of 100,000 files: it gets another theme' 25000 100000
