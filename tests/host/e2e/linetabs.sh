#!/bin/sh
# The line tabs end to end through orvhost, inside a Wine session: a Fibonacci, a pitchfork and a
# parallel channel's line tab in the platform's sheet, edited by script (a ratio, a visibility box,
# a style, a weight, and a colour chosen with the real colour button: its drop-down opened and a
# cell of its grid clicked), Apply on the first tab and OK on the last. Each changed tab sends its
# whole study once; the Fibonacci tab, applied and not changed since, sends nothing at OK.
#   linetabs.sh <orvhost.exe> <folder of the documents>
set -u
host=$1
docs=$2
failures=0
out=$(mktemp) err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

. "$(dirname "$0")/orvhost-case.sh"

doc() { winepath -w "$docs/$1"; }

. "$(dirname "$0")/line-events.sh"

case_ "three line tabs edited, a colour from each real colour button: each study sent once" 1 "$(line_fibo)
$(line_pfork)
$(line_parallel)
DoModal returned 1" --doc "$(doc line-tabs.xml)" --script "text 2415 0.5; click 2421; select 2403 1; color 2402 33; apply;
tab 1; text 2425 0.75; color 2432 27;
tab 2; click 2401; select 2414 2; color 2412 3; ok"

exit "$failures"
