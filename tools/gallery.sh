#!/usr/bin/env bash
# Renders every dialog of the component as a user sees it: orvhost creates ChartPages through COM
# under Wine, opens each entry's document in the platform's sheet, and takes its picture (or the
# picture of the message box the entry brings up). Writes build/gallery/<name>.png and
# build/gallery/index.html, which shows them with their captions and documents.
# The entries are apps/orvhost/gallery/entries.txt; a new dialog is one line there.
#   tools/gallery.sh [--no-build] [--only <name>]...   (with --only, the index shows those alone)
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
entries=$root/apps/orvhost/gallery/entries.txt
docs=$root/apps/orvhost/gallery
out=$root/build/gallery
exe=$root/build/win64/bin/orvhost.exe
dll=$root/build/win64/bin/OrvChartDlgs.dll

build=1 inside=0
only=()
while [ $# -gt 0 ]; do
  case "$1" in
    --no-build) build=0; shift ;;
    --only) only+=("$2"); shift 2 ;;
    --inside) inside=1; shift ;;  # this script, run again inside the Wine session
    -h|--help) sed -n '2,7p' "$0"; exit 0 ;;
    *) echo "gallery.sh: unknown argument $1" >&2; exit 2 ;;
  esac
done

trim() { local s=$1; s=${s#"${s%%[![:space:]]*}"}; s=${s%"${s##*[![:space:]]}"}; printf '%s' "$s"; }
html() { sed -e 's/&/\&amp;/g' -e 's/</\&lt;/g' -e 's/>/\&gt;/g' -e 's/"/\&quot;/g'; }

if [ "$inside" = 0 ]; then
  cd "$root"
  if [ "$build" = 1 ]; then
    [ "${ORV_SKIP_DEPS:-0}" = 1 ] || "$root/tools/deps.sh"
    cmake --preset win64 >/dev/null
    cmake --build --preset win64 -j "${ORV_JOBS:-2}" --target orvhost OrvChartDlgs
  fi
  [ -x "$exe" ] || { echo "gallery.sh: $exe is not built" >&2; exit 1; }
  args=(--inside)
  for name in "${only[@]}"; do args+=(--only "$name"); done
  exec "$root/tools/wine-session.sh" "$0" "${args[@]}"
fi

mkdir -p "$out/docs"
# A full run starts afresh, so no picture of an entry that is gone stays behind.
[ ${#only[@]} -gt 0 ] || rm -f "$out"/*.png "$out"/docs/*
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
figures=$work/figures.html
: >"$figures"

while IFS= read -r line; do
  case "$line" in ''|'#'*) continue ;; esac
  IFS='|' read -r name caption doc arguments <<<"$line"
  name=$(trim "$name") caption=$(trim "$caption") doc=$(trim "$doc") arguments=$(trim "$arguments")
  if [ ${#only[@]} -gt 0 ] && [[ " ${only[*]} " != *" $name "* ]]; then continue; fi
  png=$out/$name.png
  rm -f "$png"
  cp "$docs/$doc" "$out/docs/$doc"
  # The arguments as orvhost gets them: quotes kept together, @png the picture's Windows path,
  # @dll the component's (for a standalone page, which orvhost makes straight from the DLL).
  eval "set -- $arguments"
  run=()
  for a in "$@"; do
    case "$a" in
      @png) run+=("$(winepath -w "$png")") ;;
      @dll) run+=("$(winepath -w "$dll")") ;;
      *) run+=("$a") ;;
    esac
  done
  rc=0
  wine "$exe" --doc "$(winepath -w "$docs/$doc")" "${run[@]}" >"$work/out.txt" 2>&1 || rc=$?
  if [ "$rc" = 0 ] && [ -s "$png" ]; then
    echo "ok   $name: $png"
  else
    echo "FAIL $name (orvhost exit code $rc):"
    cat "$work/out.txt"
    failures=$((failures + 1))
    continue
  fi
  {
    echo "<figure id=\"$name\"><img src=\"$name.png\" alt=\"$(printf '%s' "$name" | html)\">"
    echo "<figcaption><b>$(printf '%s' "$name" | html)</b>: $(printf '%s' "$caption" | html)<br>"
    echo "document <a href=\"docs/$doc\">$doc</a>; orvhost $(printf '%s' "$arguments" | html)</figcaption></figure>"
  } >>"$figures"
done <"$entries"

{
  cat <<'HTML'
<!DOCTYPE html>
<html><head><meta charset="utf-8"><title>OrvChartDlgs: the dialogs</title>
<style>
body { font-family: sans-serif; margin: 1.5em; }
figure { display: inline-block; vertical-align: top; margin: 0 1.5em 1.5em 0; max-width: 48em; }
figcaption { font-size: 90%; margin-top: .4em; }
img { border: 1px solid #ccc; }
</style></head><body>
<h1>OrvChartDlgs: the dialogs</h1>
<p>Each picture is the component's dialog in the platform's property sheet under Wine, opened by
orvhost through COM with the document named below (made by <code>tools/gallery.sh</code>); a
standalone chart page is shown in orvhost's own property frame, its properties served from the
document.</p>
HTML
  cat "$figures"
  echo "</body></html>"
} >"$out/index.html"
echo "gallery.sh: $out/index.html"
exit "$failures"
