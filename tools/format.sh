#!/usr/bin/env bash
# Lays out the project's C++ sources by .clang-format, or with --check only tells which differ.
#   tools/format.sh [--check]
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
mapfile -t files < <(git ls-files 'src/*.cpp' 'src/*.h' 'apps/*.cpp' 'apps/*.h' 'tests/*.cpp' 'tests/*.h')
if [ "${1:-}" = --check ]; then
  exec clang-format --dry-run --Werror "${files[@]}"
fi
clang-format -i "${files[@]}"
