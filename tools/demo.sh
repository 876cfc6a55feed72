#!/usr/bin/env bash
# Builds the demo (win64) and shows its themed dialog under Wine: on $DISPLAY when one is set,
# otherwise headless under Xvfb, writing a PNG of the dialog and saying where.
#   tools/demo.sh [--headless]
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
headless=0
[ "${1:-}" = --headless ] && headless=1
[ -n "${DISPLAY:-}" ] || headless=1

[ "${ORV_SKIP_DEPS:-0}" = 1 ] || "$root/tools/deps.sh"
cmake --preset win64 >/dev/null
cmake --build --preset win64 -j "${ORV_JOBS:-2}" --target orvdemo

exe=$root/build/win64/bin/orvdemo.exe
if [ "$headless" = 0 ]; then
  echo "demo.sh: showing the dialog on $DISPLAY; close it to finish"
  exec "$root/tools/wine-session.sh" --display "$root/cmake/wine-run.sh" "$exe"
fi

out_dir=$root/build/win64/demo
mkdir -p "$out_dir"
rm -f "$out_dir/orvdemo.png"
# The demo writes into its working folder: no Windows path to translate.
(cd "$out_dir" && "$root/tools/wine-session.sh" "$root/cmake/wine-run.sh" "$exe" --screenshot orvdemo.png)
if [ ! -s "$out_dir/orvdemo.png" ]; then
  echo "demo.sh: the demo wrote no screenshot" >&2
  exit 1
fi
echo "demo.sh: no display, so the dialog was shown under Xvfb; its picture is $out_dir/orvdemo.png"
