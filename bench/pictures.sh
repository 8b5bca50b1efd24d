#!/usr/bin/env bash
# usage: bench/pictures.sh [PICTURES] [ROUNDS]     (default 100 of each format and 3)
# What recolouring many pictures costs: one `morpho recolor` for all, beside a loop that calls ImageMagick for each
# picture and gifsicle, which makes a GIF small again, for each GIF. All are 800 x 600. Prints medians and their ratios.
set -euo pipefail
cd "$(dirname "$0")/.."
count=${1:-100} rounds=${2:-3}
for program in convert gifsicle; do
    command -v "$program" >/dev/null || { echo "bench/pictures.sh: $program is not installed." >&2; exit 1; }
done
source bench/whole_programs.sh
cd "$work"

# Soft areas with some grain, each picture another.
mkdir in
for ((i = 0; i < count; i++)); do
    convert -size 800x600 -seed "$i" plasma:steelblue-orange -blur 0x2 -attenuate 0.15 +noise Gaussian -quality 80 "in/$i.jpg"
    convert "in/$i.jpg" +dither -colors 64 "in/$i.gif"
done

empty_out() { rm -rf out && mkdir out; }
ours() { "$morpho" recolor in/*."$1" --hue 60 --output-dir out; }
loop_jpg() { for file in in/*.jpg; do convert "$file" -modulate 100,100,133.3 "out/${file#in/}"; done; }
loop_gif() {
    for file in in/*.gif; do
        convert "$file" -modulate 100,100,133.3 "out/${file#in/}"
        gifsicle --batch -O1 "out/${file#in/}"
    done
}

for ((round = 0; round < rounds; round++)); do
    for format in jpg gif; do
        empty_out
        timed "ours_$format" ours "$format"
        empty_out
        timed "loop_$format" "loop_$format"
    done
done
for format in jpg gif; do
    claim "$count pictures ($format), beside a loop of ImageMagick and gifsicle" \
        "$(median "ours_$format") ms to $(median "loop_$format") ms: $(ratio "$(median "loop_$format")" "$(median "ours_$format")") times as fast" 10
done
