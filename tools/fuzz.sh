#!/usr/bin/env bash
# Runs one libFuzzer target for a given time over its seed corpus.
#   tools/fuzz.sh <target> <seconds> [extra libFuzzer options...]
# Seeds are read from tests/fuzz/corpus/<target>; new inputs go to build/native-fuzz/fuzz-runs/<target>,
# crashes to build/native-fuzz/fuzz-runs/<target>-crashes. The tree's corpus is never written.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
if [ $# -lt 2 ] || ! [[ "$2" =~ ^[0-9]+$ ]]; then
  echo "usage: tools/fuzz.sh <target> <seconds> [libFuzzer options...]" >&2
  exit 2
fi
target=$1 seconds=$2
shift 2

[ "${ORV_SKIP_DEPS:-0}" = 1 ] || "$root/tools/deps.sh"
cmake --preset native-fuzz >/dev/null
if ! cmake --build --preset native-fuzz -j "${ORV_JOBS:-2}" --target "$target"; then
  echo "fuzz.sh: cannot build '$target'; fuzz targets are:" >&2
  ctest --test-dir build/native-fuzz -N 2>/dev/null | sed -n 's/.*Test *#[0-9]*: \(.*\)_smoke$/  \1/p' >&2
  exit 1
fi
exe=$(find build/native-fuzz -type f -name "$target" -perm -u+x | head -n1)
[ -n "$exe" ] || { echo "fuzz.sh: built '$target' but cannot find its program" >&2; exit 1; }

runs=build/native-fuzz/fuzz-runs
mkdir -p "$runs/$target" "$runs/$target-crashes"
seeds=()
[ -d "tests/fuzz/corpus/$target" ] && seeds=("tests/fuzz/corpus/$target")

echo "fuzz.sh: running $target for ${seconds}s; new inputs in $runs/$target, crashes in $runs/$target-crashes"
exec "$exe" -max_total_time="$seconds" -timeout=10 -artifact_prefix="$runs/$target-crashes/" \
  "$@" "$runs/$target" "${seeds[@]}"
