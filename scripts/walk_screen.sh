# Sourced by the scripts that work the program's windows by keyboard on a screen in memory: builds the program, copies
# the sample web to $work/larkfell, and starts the screen. Sets `out` to the folder for the pictures.
scripts/install_packages.sh scripts/packages_window.txt
cmake --preset release >/dev/null
cmake --build --preset release --target morpho
work=$(mktemp -d)
export XDG_DATA_HOME=$work/data XDG_CACHE_HOME=$work/cache DISPLAY=:79
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
cp -r samples/larkfell "$work/larkfell"
mkdir -p "$out"

Xvfb $DISPLAY -screen 0 1280x900x24 >/dev/null 2>&1 &
sleep 1
openbox >/dev/null 2>&1 &
sleep 1

press() { # SECONDS KEY...: presses the keys and waits
    local pause=$1 key
    shift
    for key in "$@"; do xdotool key "$key"; sleep 0.1; done
    sleep "$pause"
}
picture() { import -window root "$out/$1.png"; }
