#!/usr/bin/env bash
# Builds the native tree in Release and runs every benchmark program.
#   tools/bench.sh [Google Benchmark options...]   e.g. --benchmark_filter=XmlFind
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
[ "${ORV_SKIP_DEPS:-0}" = 1 ] || "$root/tools/deps.sh"

build=build/native-release
# The native preset with optimisation and without tests: timings of debug code say little.
cmake --preset native -B "$build" -DCMAKE_BUILD_TYPE=Release -DORV_TESTS=OFF -DORV_BENCH=ON >/dev/null
cmake --build "$build" -j "${ORV_JOBS:-2}"

found=0
while IFS= read -r exe; do
  found=1
  echo "==> $exe"
  "$exe" "$@"
done < <(find "$build/tests/bench" -maxdepth 2 -type f -perm -u+x 2>/dev/null | sort)
if [ $found = 0 ]; then
  echo "bench.sh: no benchmark programs were built" >&2
  exit 1
fi
