#!/usr/bin/env bash
# Prints each folder's share of the lines of src/, and the lines of tests/ to those of src/. Exit status 1 where a folder
# exceeds 25 % or a function 40 lines, signature and braces included.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -d '' files < <(git ls-files -z -- 'src/*.h' 'src/*.cpp')
# clang-format ends a function with "}" alone, at the indent of its first line; lambdas, tables and classes end with ";".
awk -v tests="$(git ls-files -z -- 'tests/*.h' 'tests/*.cpp' | xargs -0 cat | wc -l)" '
    FNR == 1 { split(FILENAME, part, "/") }
    { lines[part[2]]++; match($0, /^ */); indent = RLENGTH; text = substr($0, indent + 1) }
    text == "}" && first[indent] ~ /\(/ &&
        first[indent] !~ /^(if|for|while|switch|else|do|try|case|catch|default|namespace|class|struct|enum)[^A-Za-z_]/ {
        if (FNR - start[indent] >= 40) { print FILENAME ":" start[indent] ": more than 40 lines: " first[indent]; status = 1 }
    }
    text != "" && text !~ /^(\/\/|#)/ { first[indent] = text; start[indent] = FNR }
    END {
        for (folder in lines) {
            printf "%5.1f %% %s\n", 100 * lines[folder] / NR, folder | "sort -rn"
            if (lines[folder] > NR / 4) { print "src/" folder " is more than a quarter of src/"; status = 1 }
        }
        close("sort -rn")
        printf "Sizes: src has %d lines; tests have %.1f %% of that.\n", NR, 100 * tests / NR
        exit status
    }' "${files[@]}"
