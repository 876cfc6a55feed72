#!/usr/bin/env bash
# Builds the component and orvhost, the demo host (win64), and opens the line study sheet of the
# built-in sample (a trendline study with its Advanced page) through COM under Wine: on $DISPLAY
# when one is set, where the StatusEvents it receives are printed as you apply; otherwise
# headless under Xvfb, writing a PNG of the sheet and saying where.
#   tools/demo.sh [--headless]
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
headless=0
[ "${1:-}" = --headless ] && headless=1
[ -n "${DISPLAY:-}" ] || headless=1

[ "${ORV_SKIP_DEPS:-0}" = 1 ] || "$root/tools/deps.sh"
cmake --preset win64 >/dev/null
cmake --build --preset win64 -j "${ORV_JOBS:-2}" --target orvhost OrvChartDlgs

exe=$root/build/win64/bin/orvhost.exe
if [ "$headless" = 0 ]; then
  echo "demo.sh: showing the line study sheet on $DISPLAY; close it to finish"
  exec "$root/tools/wine-session.sh" --display "$root/cmake/wine-run.sh" "$exe"
fi

out_dir=$root/build/win64/demo
mkdir -p "$out_dir"
rm -f "$out_dir/line-study-sheet.png"
# orvhost writes into its working folder: no Windows path to translate. It cancels the sheet
# after the picture, so it exits with 0 (closed without a change).
(cd "$out_dir" && "$root/tools/wine-session.sh" "$root/cmake/wine-run.sh" "$exe" --screenshot line-study-sheet.png) || true
if [ ! -s "$out_dir/line-study-sheet.png" ]; then
  echo "demo.sh: orvhost wrote no screenshot" >&2
  exit 1
fi
echo "demo.sh: no display, so the sheet was shown under Xvfb; its picture is $out_dir/line-study-sheet.png"
