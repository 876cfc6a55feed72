#!/bin/sh
# The studies with several anchors end to end through orvhost, inside a Wine session: a Fibonacci
# study by date, a pitchfork and a parallel channel by bar, their position tabs alone and then
# whole (position and line tabs in one sheet), each edited by script in the platform's sheet and
# applied; the StatusEvents a C++ sink receives are compared exactly.
#   anchors.sh <orvhost.exe> <folder of the documents>
set -u
host=$1
docs=$2
failures=0
out=$(mktemp) err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

. "$(dirname "$0")/orvhost-case.sh"
. "$(dirname "$0")/line-events.sh"

doc() { winepath -w "$docs/$1"; }

# One point as the pages write it: bar, value, date, time, seconds, snap.
point() {
  printf '<CXYCoord><XY_xPos>%s</XY_xPos><XY_yValue>%s</XY_yValue><XY_lDate>%s</XY_lDate><XY_lTime>%s</XY_lTime><XY_lSec>%s</XY_lSec><XY_lSnap>%s</XY_lSnap></CXYCoord>' "$@"
}
# event <page> <wrapper> <points> [<after the study, inside the wrapper>]
event() {
  printf 'StatusEvent: <PropertySheet Name="LSPs"><PropertyPageList><PropertyPage Name="%s"><%s><CLineStudy><PosLock>FALSE</PosLock><LS_CtrlPtList>%s</LS_CtrlPtList></CLineStudy>%s</%s></PropertyPage></PropertyPageList></PropertySheet>' \
    "$1" "$2" "$3" "${4:-}" "$2"
}

# A Fibonacci study with three anchors: the start's value typed and snapped to the high, applied;
# then the third anchor looked at and OK, which sends nothing more. LS_Style and LSFib_LineColor
# stay with the host; the labels' font comes back as the page's record of it (10 points from a
# 96 DPI screen: -10).
fibo_points="$(point 379 95.500000 45301 0 0 1)$(point 400 98.750000 45328 0 0 2)$(point 429 112.500000 45369 0 0 -1)"
fibo_font='<CFontInfo Version="3" FaceName="Tahoma" PtSize="-10" Height="-100000" Width="0" Weight="700" Italic="0" Underline="0" PitchAndFamily="0"/>'
case_ "Fibonacci by date: value and snap of the start, applied once" 1 "$(event LsPgDayFibo CFibonacci "$fibo_points" "$fibo_font")
DoModal returned 1" --doc "$(doc fibo.xml)" --script "text 1463 95.5; select 2281 2; apply; click 1482; ok"

# A pitchfork by bar: the start moved three bars on (its date and time follow the chart), the
# first anchor's value typed and snapped to the low.
pfork_points="$(point 103 104.250000 45459 695 41717 -1)$(point 130 99.500000 45459 830 49817 2)$(point 160 112.500000 45460 590 35417 -1)"
case_ "pitchfork by bar: a bar moved, a value and a snap" 1 "$(event LsPgIntraPfork CPitchfork "$pfork_points")
DoModal returned 1" --intraday --doc "$(doc pfork.xml)" --script "spin 1508 3; click 1481; text 1502 99.5; select 1531 3; ok"

# A parallel channel by bar: the left bottom moved two bars on, and the left top follows it (a
# side stands upright); the left top's value typed, and the right bottom moves so that the right
# side keeps the left side's height (112 - 100 = 12 below 115). Applied; then the right top snapped
# to the close, and OK sends the channel again.
par_after='<ExtendLeft>0</ExtendLeft><ExtendRight>1</ExtendRight>'
par_applied="$(point 202 112.000000 45460 800 48017 -1)$(point 300 115.000000 45461 900 54017 -1)$(point 202 100.000000 45460 800 48017 -1)$(point 300 103.000000 45461 900 54017 -1)"
par_ok="$(point 202 112.000000 45460 800 48017 -1)$(point 300 115.000000 45461 900 54017 0)$(point 202 100.000000 45460 800 48017 -1)$(point 300 103.000000 45461 900 54017 -1)"
case_ "parallel channel by bar: the partner follows, the other line keeps it parallel, a snap" 1 "$(event LsPgIntraParallel CParallel "$par_applied" "$par_after")
$(event LsPgIntraParallel CParallel "$par_ok" "$par_after")
DoModal returned 1" --intraday --doc "$(doc parallel.xml)" \
  --script "click 1482; spin 1508 2; click 1480; expect 1504 06/19/24; text 1502 112; apply; click 1481; select 2271 1; ok"

# Whole studies: the position tab and the line tab in one sheet, each edited as above (the line
# tab's colour chosen with the real colour button), then Apply: each page sends its own event, in
# the order of the tabs, and OK sends nothing more.
case_ "Fibonacci sheet: position and line tabs edited, applied" 1 "$(event LsPgDayFibo CFibonacci "$fibo_points" "$fibo_font")
$(line_fibo)
DoModal returned 1" --doc "$(doc study-fibo.xml)" \
  --script "text 1463 95.5; select 2281 2; tab 1; text 2415 0.5; click 2421; select 2403 1; color 2402 33; apply; tab 0; click 1482; ok"
case_ "pitchfork sheet: position and line tabs edited, applied" 1 "$(event LsPgIntraPfork CPitchfork "$pfork_points")
$(line_pfork)
DoModal returned 1" --intraday --doc "$(doc study-pfork.xml)" \
  --script "spin 1508 3; click 1481; text 1502 99.5; select 1531 3; tab 1; text 2425 0.75; color 2432 27; apply; ok"
case_ "parallel channel sheet: position and line tabs edited, applied" 1 "$(event LsPgIntraParallel CParallel "$par_applied" "$par_after")
$(line_parallel)
DoModal returned 1" --intraday --doc "$(doc study-parallel.xml)" \
  --script "click 1482; spin 1508 2; click 1480; text 1502 112; tab 1; click 2401; select 2414 2; color 2412 3; apply; ok"

exit "$failures"
