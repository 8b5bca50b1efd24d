#!/usr/bin/env bash
# Checks that every source file is formatted as .clang-format says. Exit status 1 where one is not.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -z -- '*.h' '*.cpp' | xargs -0 -r clang-format --dry-run -Werror
echo "Format: every source file is as .clang-format says."
