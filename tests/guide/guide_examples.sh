#!/bin/sh
# Every example of docs/host-guide.md, run as a host runs it: orvhost creates ChartPages through
# COM under Wine, opens the example's request, plays what the user does, and prints the
# StatusEvents it receives and DoModal's result; these must be what the guide says, exactly.
# A block that quotes a file of the tree must equal that file. A page example shows a standalone
# chart page in orvhost's own property frame instead, the page made straight from the DLL.
#   guide_examples.sh <orvhost.exe> <source root> <OrvChartDlgs.dll>
# The guide's blocks (fence info after the language):
#   request=<name> [chart=daily|intraday|none]   the document handed to DoModal2 (DoModal with none)
#   request=<name> page=<class id>               the document the page's chart object serves
#   user=<name>                                  what the user does, in orvhost's script language
#   events=<name> returns=<n>                    the StatusEvent documents in order, then the result;
#                                                for a page, the frame's lines (a document sent
#                                                continues the line before it), then the result
#   file=<path>                                  a file of the tree, quoted whole
# Each xml block must be one of these, so no example goes unchecked.
set -u
host=$1
root=$2
dll=$3
guide=$root/docs/host-guide.md
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
# orvhost's output compared without its standard error, which a failure shows, and without the
# values the component stores through the host's settings service (orvhost's "SetValue:" lines):
# an example is its events and its result.
. "$root/tests/host/e2e/orvhost-case.sh"
out=$work/out err=$work/err apart_stderr=1 drop_lines='^SetValue: '

fail() { echo "FAIL $*"; failures=$((failures + 1)); }

# Split the guide into one file per block: <kind>.<name> (+ .attrs), or a list of problems.
awk -v dir="$work" '
  function attr(key,   i, n, kv) {
    n = split(info, kv, /[ \t]+/)
    for (i = 1; i <= n; i++) if (index(kv[i], key "=") == 1) return substr(kv[i], length(key) + 2)
    return ""
  }
  !inblock && /^```[A-Za-z]/ {
    inblock = 1; start = NR; lang = substr($0, 4); info = lang; sub(/[ \t].*/, "", lang)
    sub(/^[^ \t]*[ \t]*/, "", info)
    out = ""
    if ((n = attr("request")) != "") {
      out = dir "/request." n; print attr("chart") > (dir "/chart." n); print attr("page") > (dir "/page." n)
    }
    else if ((n = attr("user")) != "") out = dir "/user." n
    else if ((n = attr("events")) != "") { out = dir "/events." n; print attr("returns") > (dir "/returns." n) }
    else if ((n = attr("file")) != "") { out = dir "/file." (++files); print n > (dir "/path." files) }
    else if (lang == "xml") print "line " NR ": an xml block that nothing checks (give it request=, events= or file=)" >> (dir "/problems")
    if (out != "") {
      if (out in seen) print "line " NR ": a second block " out >> (dir "/problems")
      seen[out] = 1
      printf "" > out
    }
    next
  }
  inblock && /^```[ \t]*$/ { inblock = 0; if (out != "") close(out); next }
  inblock && out != "" { print > out }
  END { if (inblock) print "line " start ": a block that never ends" >> (dir "/problems") }
' "$guide"

if [ -s "$work/problems" ]; then
  while IFS= read -r problem; do fail "docs/host-guide.md $problem"; done <"$work/problems"
fi

# Quoted files, byte for byte (the block's last line break is the file's).
for path_file in "$work"/path.*; do
  [ -e "$path_file" ] || continue
  k=${path_file##*.}
  path=$(cat "$path_file")
  if cmp -s "$work/file.$k" "$root/$path"; then echo "ok   file $path"; else fail "file $path: the guide's copy differs from the file"; fi
done

# The expected output: each event document on one line (its lines trimmed and joined; XML
# comments dropped), as orvhost prints it, then the result.
expected() {
  awk '
    { sub(/^[ \t]+/, ""); sub(/[ \t\r]+$/, "") }
    /^<!--.*-->$/ || $0 == "" { next }
    /^<PropertySheet/ { if (doc != "") print "StatusEvent: " doc; doc = "" }
    { doc = doc $0 }
    END { if (doc != "") print "StatusEvent: " doc }
  ' "$work/events.$1"
  echo "DoModal returned $(cat "$work/returns.$1")"
}

# The same for a page: the frame's lines as orvhost prints them, each trimmed; a line that starts
# with markup continues the line before it (after a space when that line is no markup: the
# document that SetPageProperties got), so a document may be shown indented, over many lines.
expected_page() {
  awk '
    { sub(/^[ 	]+/, ""); sub(/[ 	]+$/, "") }
    /^<!--.*-->$/ || $0 == "" { next }
    /^</ && started { line = line (line ~ />$/ ? "" : " ") $0; next }
    { if (started) print line; line = $0; started = 1 }
    END { if (started) print line }
  ' "$work/events.$1"
  echo "Frame returned $(cat "$work/returns.$1")"
}

for request in "$work"/request.*; do
  [ -e "$request" ] || { fail "docs/host-guide.md has no examples"; break; }
  name=${request##*/request.}
  if [ ! -e "$work/user.$name" ] || [ ! -e "$work/events.$name" ]; then
    fail "$name: a request needs its user= and events= blocks"
    continue
  fi
  set -- --doc "$(winepath -w "$request")" --script "$(winepath -w "$work/user.$name")"
  code=$(cat "$work/returns.$name")
  page=$(cat "$work/page.$name")
  if [ -n "$page" ]; then
    [ -z "$(cat "$work/chart.$name")" ] || { fail "$name: a page example takes no chart="; continue; }
    case_ "$name" "$code" "$(expected_page "$name")" --activate direct --dll "$(winepath -w "$dll")" --page "$page" "$@"
    continue
  fi
  case $(cat "$work/chart.$name") in
    ""|daily) ;;
    intraday) set -- "$@" --intraday ;;
    none) set -- "$@" --no-chart-data ;;
    *) fail "$name: chart= takes daily, intraday or none"; continue ;;
  esac
  [ "$code" = -1 ] && code=255
  case_ "$name" "$code" "$(expected "$name")" "$@"
done
for block in "$work"/events.* "$work"/user.*; do
  [ -e "$block" ] || continue
  name=${block##*/}
  [ -e "$work/request.${name#*.}" ] || fail "${name#*.}: ${name%%.*} without a request"
done
exit "$failures"
