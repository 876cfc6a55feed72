#!/bin/sh
# Runs the demo headless with --screenshot and checks the PNG: a dialog-sized picture with
# more than a handful of colours (a black or blank capture has one or two).
#   demo_screenshot.sh <wine-run.sh> <orvdemo.exe> <work dir> <min w> <max w> <min h> <max h> [demo options]
set -eu
runner=$1 exe=$2 dir=$3 minw=$4 maxw=$5 minh=$6 maxh=$7
shift 7
mkdir -p "$dir"
cd "$dir"
rm -f demo.png
"$runner" "$exe" "$@" --screenshot demo.png
[ -s demo.png ] || { echo "no demo.png written" >&2; exit 1; }
set -- $(identify -format '%m %w %h %k' demo.png)
format=$1 width=$2 height=$3 colours=$4
echo "demo.png: $format ${width}x$height, $colours colours"
[ "$format" = PNG ] || { echo "not a PNG: $format" >&2; exit 1; }
if [ "$width" -lt "$minw" ] || [ "$width" -gt "$maxw" ] || [ "$height" -lt "$minh" ] || [ "$height" -gt "$maxh" ]; then
  echo "size ${width}x$height is not the dialog's (expected ${minw}-${maxw} x ${minh}-${maxh})" >&2
  exit 1
fi
[ "$colours" -ge 16 ] || { echo "only $colours colours: the capture is blank" >&2; exit 1; }
