# Sourced by the scripts walk_NAME.sh, which work the program's windows by keyboard on a screen in memory and take OUT and
# PRESET as arguments: builds the program, copies the sample web to $work/larkfell, and starts the screen. Pictures go to
# the folder $out.
cd "$(dirname "$0")/.."
walk=$(basename "$0" .sh)
out=${1:-out/${walk#walk_}}
preset=${2:-release}
scripts/install_packages.sh scripts/packages_window.txt
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target morpho
work=$(mktemp -d)
export XDG_DATA_HOME=$work/data XDG_CACHE_HOME=$work/cache
trap 'kill $(jobs -p) ${screen:-} 2>/dev/null || true; rm -rf "$work"' EXIT
cp -r samples/larkfell "$work/larkfell"
mkdir -p "$out"

# The number of a free screen comes back.
exec {number}< <(exec Xvfb -displayfd 1 -screen 0 1280x900x24 2>/dev/null)
screen=$!
read -r -u "$number" -t 30 display || { echo "Xvfb does not start." >&2; exit 1; }
export DISPLAY=:$display
openbox >/dev/null 2>&1 &
sleep 1

press() { # SECONDS KEY...: presses the keys and waits
    local pause=$1 key
    shift
    for key in "$@"; do xdotool key "$key"; sleep 0.1; done
    sleep "$pause"
}
start() { # SECONDS ARGUMENT...: starts the program
    "build/$preset/bin/morpho" "${@:2}" &
    program=$!
    sleep "$1"
}
finish() { # closes the window; fails unless the program ends well
    press 1 ctrl+q
    wait $program
}
picture() { import -window root "$out/$1.png"; }
