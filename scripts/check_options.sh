#!/usr/bin/env bash
# Checks that bash completes the commands and options that PROGRAM's own help tells, no more and no fewer, and that the
# manual page names each of them. Prints what differs; exit status 1 if something does.
# usage: scripts/check_options.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
cd "$(dirname "$0")/../packaging/linux"
source ./morpho.bash
manual=$(sed 's/\\-/-/g' morpho.1.in)
status=0

# The commands and long options that begin a line of a help text.
told() { "$program" "$@" --help | sed -nE 's/^ +(-h,)?(--[a-z-]+).*/\2/p; /^Subcommands:/,/^$/s/^  ([a-z]+) .*/\1/p'; }

# What bash offers for the last of these words.
offered() {
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
    _morpho
    printf '%s\n' "${COMPREPLY[@]}"
}

compare() { # what is completed, told words, offered words
    diff <(sort <<<"$2") <(sort <<<"$3") | sed -n "s/^</$1: not completed:/p; s/^>/$1: no such option or command:/p" | grep . && status=1
    local word
    for word in $2; do
        grep -qE -e "(^|[^a-z-])$word([^a-z-]|$)" <<<"$manual" || { echo "$1: not in the manual page: $word"; status=1; }
    done
}

top=$(told)
compare morpho "$top" "$(offered morpho '')"
for command in $(grep -v '^-' <<<"$top"); do
    compare "morpho $command" "$(told "$command")" "$(offered morpho "$command" -)"
done
exit $status
