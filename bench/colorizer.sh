#!/usr/bin/env bash
# usage: bench/colorizer.sh [ROUNDS]     (default 9)
# Builds the release preset, makes pictures, measures the recolouring component beside what a user could take instead,
# and writes the results into bench/README.md. Every program is a whole process; they take turns; medians are kept.
# Programs that are not installed are left out.
set -euo pipefail
cd "$(dirname "$0")/.."
rounds=${1:-9}
export LC_ALL=C
source bench/claim.sh

cmake --preset release >/dev/null
cmake --build build/release --target bench_make_inputs bench_recolor_files bench_loss bench_agreement >/dev/null
bin=$PWD/build/release/bin
if [ -w /dev/shm ]; then work=$(mktemp -d -p /dev/shm); else work=$(mktemp -d); fi  # in memory: no disk has a say
trap 'rm -rf "$work"' EXIT
mkdir "$work/out"
"$bin/bench_make_inputs" "$work"
"$bin/bench_agreement" make "$work"
cd "$work"

program() { # the first of the names that is installed
    local name
    for name in "$@"; do command -v "$name" && return; done
    return 1
}
im=$(program convert-im6.q16 magick convert) || im=
mogrify=$(program mogrify-im6.q16 mogrify) || mogrify=
gm=$(program gm) || gm=
ffmpeg=$(program ffmpeg) || ffmpeg=
gifsicle=$(program gifsicle) || gifsicle=
jpegtran=$(program jpegtran) || jpegtran=

median() { sort -n | awk '{ value[NR] = $1 } END { print value[int((NR + 1) / 2)] }'; }

# measure TASK PROGRAM...: runs the functions PROGRAM_TASK in turn; leaves the medians, in milliseconds, in result[].
# Each writes into a folder of its own, $to: file systems are slow where files have just been deleted.
declare -A result
measure() {
    local task=$1 round name start
    shift
    for ((round = 0; round < rounds; round++)); do
        for name in "$@"; do
            to=$(mktemp -d out.XXXX)
            if declare -F "before_${name}_$task" >/dev/null; then "before_${name}_$task"; fi
            start=$EPOCHREALTIME
            "${name}_$task" </dev/null >/dev/null
            echo $(((${EPOCHREALTIME/./} - ${start/./}))) >>"times.$task.$name"
        done
    done
    for name in "$@"; do
        result[$task.$name]=$(median <"times.$task.$name" | awk '{ printf "%.1f", $1 / 1000 }')
    done
}

# One JPEG. The adjustment is a hue shift of 36 degrees, or brightness, saturation and hue at once.
picture=
hue_of() { "$bin/bench_recolor_files" "$to" "$1" 1 1 36 "$picture"; }
this_hue() { hue_of 1; }
this_all() { "$bin/bench_recolor_files" "$to" 1 1.1 0.8 36 "$picture"; }
floor_all() { floor_hue; }
copy_hue() { cp "$picture" "$to"; }
floor_hue() { "$jpegtran" -copy all $progressive -outfile "$to/out.jpg" "$picture"; }
im_hue() { "$im" "$picture" -modulate 100,100,120 "$to/out.jpg"; }
gm_hue() { "$gm" convert "$picture" -modulate 100,100,120 "$to/out.jpg"; }
ffmpeg_hue() { "$ffmpeg" -nostdin -v error -y -i "$picture" -vf hue=h=36 -q:v 3 "$to/out.jpg"; }

# Many files.
this_theme() { "$bin/bench_recolor_files" "$to" 1 1 1 36 theme/*; }
copy_theme() { cp theme/* "$to"; }
im_theme() { "$mogrify" -path "$to" -modulate 100,100,120 theme/*; }
gm_theme() { "$gm" mogrify -create-directories -output-directory "$to" -modulate 100,100,120 theme/*; }
this_gifs() { "$bin/bench_recolor_files" "$to" 1 1 1 36 gifs/*; }
copy_gifs() { cp gifs/* "$to"; }
im_gifs() { "$mogrify" -path "$to" -modulate 100,100,120 gifs/*; }
gm_gifs() { "$gm" mogrify -create-directories -output-directory "$to" -modulate 100,100,120 gifs/*; }
before_gifsicle_gifs() { cp gifs/* "$to"; }
gifsicle_gifs() { "$gifsicle" --batch --change-color 1,2,3 4,5,6 "$to"/*; }

row() { # TASK TITLE: a line of ratios to this component
    local task=$1 name
    printf '| %s | %s |' "$2" "${result[$task.this]}"
    for name in copy floor im gm ffmpeg gifsicle; do
        awk -v their="${result[$task.$name]:-}" -v our="${result[$task.this]}" \
            'BEGIN { if (their == "") printf " |"; else printf " %.2f |", their / our }'
    done
    echo
}

installed() { local name; for name in "$@"; do [ -n "${!name}" ] && echo "$name"; done; true; }

times_faster() { # TASK PROGRAM
    awk -v their="${result[$1.$2]}" -v our="${result[$1.this]}" 'BEGIN { printf "%.2f", their / our }'
}
claim_of_jpeg() { # FILE: after it was measured
    local aim=0.77
    [ "$1" != progressive ] || aim=1.6
    [ -z "$jpegtran" ] || claim "12-megapixel JPEG ($1), beside a copy by jpegtran" "$(times_faster hue floor) times as fast" "$aim"
    [ -z "$im" ] || claim "12-megapixel JPEG ($1), beside ImageMagick" "$(times_faster hue im) times as fast" '8, but for progressive'
}

times_table() {
    echo '| task | this component, ms | `cp` | `jpegtran` | ImageMagick | GraphicsMagick | ffmpeg | gifsicle |'
    echo '| --- | --- | --- | --- | --- | --- | --- | --- |'
    local file title others floor=
    others=$(installed im gm ffmpeg)
    [ -z "$jpegtran" ] || floor=floor
    while IFS='|' read -r file title; do
        picture=jpeg/$file.jpg
        progressive=
        [ "$file" != progressive ] || progressive=-progressive
        rm -f times.hue.*
        measure hue this copy $floor $others
        row hue "12-megapixel JPEG, $title, hue"
        claim_of_jpeg "$file" >/dev/null
        rm -f times.all.*
        measure all this $floor
        row all "the same, brightness, saturation and hue"
        rm -f times.hue.*
        GLIBC_TUNABLES=glibc.malloc.hugetlb=1 measure hue this $floor $others
        row hue 'the same, hue, in large pages'
    done <<<$'420|4:2:0\n444|4:4:4\nprogressive|4:2:0, progressive'
    measure theme this copy $(installed im gm)
    row theme '38 pictures of a theme, GIF and JPEG'
    [ -z "$im" ] || claim 'the 38 pictures of a theme, beside ImageMagick' "$(times_faster theme im) times as fast" '-' >/dev/null
    measure gifs this copy $(installed im gm gifsicle)
    row gifs '1,000 small GIFs'
}

# Loss, by passes of 36 degrees on a 4:2:0 picture of quality 80.
sample=jpeg/small-q80.jpg
matrix() { # HUE SEPARATOR: the formula as a matrix on RGB
    awk -v h="$1" -v separator="$2" 'BEGIN {
        h *= atan2(0, -1) / 180; c = cos(h); n = sin(h)
        split("0.299 0.587 0.114", w)
        split("-0.236568 -0.464432 0.701 0.292568 0.092482 -0.38505 -0.886 0.741915 0.144085", k)
        for (i = 1; i <= 3; i++) for (j = 1; j <= 3; j++)
            printf "%.6f%s", (1 - c) * w[j] + (i == j ? c : 0) + n * k[3 * (i - 1) + j], (j < 3 ? "," : separator)
    }'
}
pass_im() { "$im" "$1" -color-matrix "$(matrix 36 ' ')" "$2"; }
pass_gm() { "$gm" convert "$1" -quality 80 -recolor "$(matrix 36 ' ')" "$2"; }
pass_ffmpeg() { "$ffmpeg" -nostdin -v error -y -i "$1" -vf hue=h=36 -q:v 3 "$2"; }
repeat() { # PROGRAM PASSES
    local pass
    cp "$sample" out/repeat.jpg
    for ((pass = 0; pass < $2; pass++)); do
        "pass_$1" out/repeat.jpg out/next.jpg
        mv out/next.jpg out/repeat.jpg
    done
}
timed() { # COMMAND...: milliseconds, median
    local round start
    for ((round = 0; round < rounds; round++)); do
        start=$EPOCHREALTIME
        "$@" </dev/null >/dev/null
        echo $((${EPOCHREALTIME/./} - ${start/./}))
    done | median | awk '{ printf "%.0f", $1 / 1000 }'
}
loss_table() {
    local name passes others loss
    others=$(installed im gm ffmpeg)
    echo '| passes | this component | ImageMagick | GraphicsMagick | ffmpeg |'
    echo '| --- | --- | --- | --- | --- |'
    picture=$sample
    to=out
    for passes in 1 2 5 10 20; do
        hue_of "$passes"
        loss=$("$bin/bench_loss" "$sample" out/small-q80.jpg "$passes" 1 1 36)
        [ "$passes" != 10 ] || claim 'loss of a JPEG in 10 passes' "$loss dB" '43 dB or more' >/dev/null
        printf '| %s | %s dB, %s ms |' "$passes" "$loss" "$(timed hue_of "$passes")"
        for name in im gm ffmpeg; do
            if [ -z "${!name}" ]; then printf ' |'; continue; fi
            local milliseconds
            milliseconds=$(rounds=3 timed repeat "$name" "$passes")
            printf ' %s dB, %s ms |' "$("$bin/bench_loss" "$sample" out/repeat.jpg "$passes" 1 1 36)" "$milliseconds"
        done
        echo
    done
}

whole_turns() {
    local turn
    for turn in '4 90' '2 180' '4 -90'; do
        "$bin/bench_recolor_files" out ${turn% *} 1 1 ${turn#* } "$sample"
        cmp -s "$sample" out/small-q80.jpg && echo "${turn% *} passes of ${turn#* } degrees give the source back, byte for byte." ||
            { echo "${turn% *} passes of ${turn#* } degrees do NOT give the source back."; return 1; }
    done
}

within_a_level() { # WHAT LEVELS: fails where colours differ by more than rounding explains
    echo "$1 and this component differ by at most $2 level."
    claim "$1: largest difference" "$2 level" '1 or less' >/dev/null
    [ "$2" -le 1 ]
}
agreement() {
    local largest=0 difference hue saturation brightness
    if [ -n "$ffmpeg" ]; then
        while read -r saturation hue; do
            "$ffmpeg" -nostdin -v error -y -f rawvideo -pix_fmt yuv444p -s 256x256 -i planes.yuv \
                -vf "hue=h=$hue:s=$saturation" -f rawvideo planes.out.yuv
            difference=$("$bin/bench_agreement" planes . "$saturation" "$hue")
            [ "$difference" -le "$largest" ] || largest=$difference
        done <<<$'1 36\n1 120\n1.3 -77\n0.4 0\n1 180'
        within_a_level "ffmpeg's \`hue\` on Y, Cb and Cr planes" "$largest"
    else
        echo "ffmpeg is not here to be compared with."
    fi
    if [ -n "$im" ]; then
        largest=0
        for hue in 36 120 -77 180; do
            "$im" cube.ppm -color-matrix "$(matrix "$hue" ' ')" -depth 8 cube.out.ppm
            difference=$("$bin/bench_agreement" rgb . 1 1 "$hue")
            [ "$difference" -le "$largest" ] || largest=$difference
        done
        within_a_level "ImageMagick's \`-color-matrix\` on 4,096 RGB colours" "$largest"
    else
        echo "ImageMagick is not here to be compared with."
    fi
}

machine() {
    printf '%s cores, %s; medians of %s rounds.\n' "$(nproc)" \
        "$(awk -F': ' '/^model name/ { print $2; exit }' /proc/cpuinfo)" "$rounds"
}

{
    echo
    machine
    printf '\n### Time\n\n'
    times_table
    printf '\n### Loss and time by passes\n\n'
    loss_table
    printf '\n'
    whole_turns
    printf '\n### Agreement\n\n'
    agreement
} | tee results.md
cd - >/dev/null
sed '/^<!-- results -->$/q' bench/README.md >"$work/README.md"
cat "$work/results.md" >>"$work/README.md"
cp "$work/README.md" bench/README.md
