#!/usr/bin/env bash
# Runs the benchmarks:
#   - native: builds the native tree in Release and runs every Google Benchmark program;
#   - wine: builds orvbench in the win64 tree and runs it under Wine and Xvfb: the cost of
#     opening the line study sheets against the platform's own property sheet (medians, ratios).
#
#   tools/bench.sh [Google Benchmark options...]   both; the options go to the native programs
#   tools/bench.sh --native [Google Benchmark options...]   e.g. --benchmark_filter=XmlFind
#   tools/bench.sh --wine [orvbench options...]             default: --runs 5; e.g. --phases
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
[ "${ORV_SKIP_DEPS:-0}" = 1 ] || "$root/tools/deps.sh"

mode=both
case "${1:-}" in
  --native) mode=native; shift ;;
  --wine) mode=wine; shift ;;
esac

run_native() {
  local build=build/native-release
  # The native preset with optimisation and without tests: timings of debug code say little.
  cmake --preset native -B "$build" -DCMAKE_BUILD_TYPE=Release -DORV_TESTS=OFF -DORV_BENCH=ON >/dev/null
  cmake --build "$build" -j "${ORV_JOBS:-2}"

  local found=0 exe
  while IFS= read -r exe; do
    found=1
    echo "==> $exe"
    "$exe" "$@"
  done < <(find "$build/tests/bench" -maxdepth 2 -type f -perm -u+x 2>/dev/null | sort)
  if [ $found = 0 ]; then
    echo "bench.sh: no benchmark programs were built" >&2
    exit 1
  fi
}

run_wine() {
  # The win64 tree as the tests use it (Release with debug info); only the bench and the DLL.
  cmake --preset win64 >/dev/null
  cmake --build --preset win64 -j "${ORV_JOBS:-2}" --target orvbench
  [ $# -gt 0 ] || set -- --runs 5
  echo "==> orvbench $*"
  "$root/tools/wine-session.sh" "$root/cmake/wine-run.sh" "$root/build/win64/bin/orvbench.exe" "$@"
}

case $mode in
  native) run_native "$@" ;;
  wine) run_wine "$@" ;;
  both) run_native "$@"; run_wine ;;
esac
