# Sourced by the measurements that time whole programs in turn: builds the release, and makes a folder $work, where the
# program also keeps its data and its cache.
source bench/claim.sh
cmake --preset release >/dev/null
cmake --build build/release --target morpho >/dev/null
morpho=$PWD/build/release/bin/morpho
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export XDG_DATA_HOME=$work/data XDG_CACHE_HOME=$work/cache

timed() { # NAME COMMAND...: adds the time that the command takes to those of this name
    local name=$1 start
    shift
    start=$EPOCHREALTIME
    "$@" >/dev/null 2>&1
    echo $((${EPOCHREALTIME/./} - ${start/./})) >>"$work/$name.times"
}
median() { # NAME: in milliseconds
    sort -n "$work/$1.times" | awk '{ value[NR] = $1 } END { printf "%.1f", value[int((NR + 1) / 2)] / 1000 }'
}
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; } # NUMBER NUMBER
