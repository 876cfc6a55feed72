#!/bin/sh
# The component end to end through orvhost, inside a Wine session: COM activation (through the
# DLL's manifest, or straight from the DLL), the platform's property sheet, scripted input, and
# the StatusEvents a C++ sink receives. Each case compares orvhost's whole output and exit code.
# Event texts are compared without the line breaks and tabs that the DOM's markup may carry.
#   e2e.sh <orvhost.exe> <folder of the documents>
set -u
host=$1
docs=$2
failures=0
out=$(mktemp) err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

. "$(dirname "$0")/orvhost-case.sh"

doc() { winepath -w "$docs/$1"; }

applied() {
  printf 'StatusEvent: <PropertySheet Name="LSPs"><PropertyPageList><PropertyPage Name="LsPgAdvanced"><AlwaysVisible>%s</AlwaysVisible><LSTxt_ScrnAnch>%s</LSTxt_ScrnAnch></PropertyPage></PropertyPageList></PropertySheet>' "$1" "$2"
}

case_ "OK after a change: one event, result 1" 1 "$(applied TRUE FALSE)
DoModal returned 1" --doc "$(doc advanced.xml)" --script "click 4646; ok"

# The result after Apply and Cancel is the platform sheet's own answer; Wine's gives 0.
case_ "Apply twice: one event; Cancel afterwards sends nothing more" 0 "$(applied TRUE FALSE)
DoModal returned 0" --doc "$(doc advanced.xml)" --script "click 4646; apply; apply; click 4645; cancel"

case_ "Apply, change, Apply: two events with what was shown each time" 1 "$(applied TRUE FALSE)
$(applied FALSE FALSE)
DoModal returned 1" --doc "$(doc advanced.xml)" --script "click 4646; apply; click 4645; apply; ok"

case_ "Cancel after a change: no event, result 0" 0 "DoModal returned 0" \
  --doc "$(doc advanced.xml)" --script "click 4646; cancel"

case_ "OK without a change: no event, result 1" 1 "DoModal returned 1" --doc "$(doc advanced.xml)" --script "ok"

case_ "Kind 6 offers the screen position; an unknown page is passed over; without chart data" 1 "$(applied TRUE TRUE)
DoModal returned 1" --doc "$(doc advanced-text.xml)" --no-chart-data --script "click 4647; ok"

case_ "Kind 1 hides the screen position" 3 "DoModal returned 0
orvhost: script: command 1 (\"click 4647\"): control 4647 is hidden" --doc "$(doc advanced.xml)" --script "click 4647"

case_ "no PropertySheet: result 2, no window" 2 "DoModal returned 2
orvhost: no sheet was shown, so the script did not run" --doc "$(doc no-sheet.xml)" --script "ok"

case_ "straight from the DLL, by DoModal" 1 "$(applied TRUE FALSE)
DoModal returned 1" --activate direct --no-chart-data --doc "$(doc advanced.xml)" --script "click 4646; ok"

# A trendline study's Day page: a new value and Extend Right cleared (a three-state box: checked,
# indeterminate, cleared), applied; then the End vertex looked at and OK, which sends nothing more.
# The event carries the whole page as saved.
trendline_page() {
  printf '%s' 'StatusEvent: <PropertySheet Name="LSPs"><PropertyPageList><PropertyPage Name="LsPgDayTrend"><CTrendline><CLineStudy><PosLock>FALSE</PosLock><LS_CtrlPtList>'
  printf '%s' '<CXYCoord><XY_xPos>379</XY_xPos><XY_yValue>110.500000</XY_yValue><XY_lDate>45301</XY_lDate><XY_lTime>0</XY_lTime><XY_lSec>0</XY_lSec><XY_lSnap>-1</XY_lSnap></CXYCoord>'
  printf '%s' '<CXYCoord><XY_xPos>429</XY_xPos><XY_yValue>112.500000</XY_yValue><XY_lDate>45371</XY_lDate><XY_lTime>0</XY_lTime><XY_lSec>0</XY_lSec><XY_lSnap>0</XY_lSnap></CXYCoord>'
  printf '%s' '</LS_CtrlPtList></CLineStudy><LSTrl_Extendpt1>0</LSTrl_Extendpt1><LSTrl_Extendpt2>0</LSTrl_Extendpt2></CTrendline></PropertyPage></PropertyPageList></PropertySheet>'
}
case_ "trendline Day page edited and applied: the page as saved, once" 1 "$(trendline_page)
DoModal returned 1" --doc "$(doc trendline.xml)" --script "text 1463 110.5; click 2274; click 2274; apply; click 1481; ok"

# Without chart data no date has a bar: OK brings the program's holiday box and the sheet stays.
case_ "Day page without chart data: the holiday box refuses OK" 3 "DoModal returned 0
orvhost: script: command 2 (\"ok\") left a window open (\"Error\")" \
  --no-chart-data --doc "$(doc trendline.xml)" --script "text 1463 99; ok; cancel"

# The same box photographed and answered with Esc: the sheet stays, and the script goes on.
box=$(mktemp -u).png
case_ "the holiday box photographed, answered, the sheet cancelled afterwards" 0 "DoModal returned 0" \
  --no-chart-data --doc "$(doc trendline.xml)" --script "text 1463 99; ok; cancel" --box-screenshot "$(winepath -w "$box")"
[ -s "$box" ] || { echo "FAIL the holiday box: no picture written"; failures=$((failures + 1)); }
rm -f "$box"
case_ "no box over the sheet: nothing to photograph is an error" 3 "DoModal returned 1
orvhost: no window opened over the sheet" --doc "$(doc advanced.xml)" --script "ok" --box-screenshot "$(winepath -w "$box")"

# The cycle finder: the period shown from the two points, typed (and stepped) and applied; the end
# follows from it: on the Day page the date of the start's bar plus the period, on the Intra page
# the bar itself with its date and time from the chart.
xy() {
  printf '<CXYCoord><XY_xPos>%s</XY_xPos><XY_yValue>%s</XY_yValue><XY_lDate>%s</XY_lDate><XY_lTime>%s</XY_lTime><XY_lSec>%s</XY_lSec><XY_lSnap>-1</XY_lSnap></CXYCoord>' "$@"
}
cycle_page() {
  printf 'StatusEvent: <PropertySheet Name="LSPs"><PropertyPageList><PropertyPage Name="%s"><CCycleFinder><CLineStudy><PosLock>FALSE</PosLock><LS_CtrlPtList>%s%s</LS_CtrlPtList></CLineStudy></CCycleFinder></PropertyPage></PropertyPageList></PropertySheet>' "$1" "$2" "$3"
}
case_ "cycle finder Day page: period 10 shown, 25 typed and applied" 1 "$(cycle_page LsPgDayCycfnd "$(xy 379 104.250000 45301 0 0)" "$(xy 389 104.250000 45336 0 0)")
DoModal returned 1" --doc "$(doc cycfnd-day.xml)" --script "expect 1470 10; text 1470 25; apply; ok"

case_ "cycle finder Intra page: period 10 shown, 18 typed, two steps up, applied" 1 "$(cycle_page LsPgIntraCycfnd "$(xy 602 101.500000 45467 850 51017)" "$(xy 622 101.500000 45467 950 57017)")
DoModal returned 1" --intraday --doc "$(doc cycfnd-intra.xml)" --script "expect 1517 10; text 1517 18; spin 1519 2; expect 1517 20; apply; ok"

case_ "cycle finder: period 251 keeps the sheet open without a box; Cancel sends nothing" 0 "DoModal returned 0" \
  --doc "$(doc cycfnd-day.xml)" --script "text 1470 251; ok; cancel"

# The text page: the transparency shown as a percentage (opacity 204 is 20 %), 35 % typed (sent as
# trunc(65 * 2.5501) = 165), the lock clicked, applied; the colour and the font go back as they came.
text_page() {
  printf '%s' 'StatusEvent: <PropertySheet Name="LSPs"><PropertyPageList><PropertyPage Name="LsPgText"><CLineStudy><PosLock>TRUE</PosLock></CLineStudy>'
  printf '%s' '<CTrendtext><LSTxt_TextColor>RGB(0,0,128)</LSTxt_TextColor><LSTxt_Transparency>165</LSTxt_Transparency>'
  printf '%s' '<CFontInfo Version="3" FaceName="Tahoma" PtSize="10" Height="100000" Width="0" Weight="400" Italic="0" Underline="0" PitchAndFamily="0"/></CTrendtext></PropertyPage></PropertyPageList></PropertySheet>'
}
case_ "text page: transparency typed, lock clicked, applied" 1 "$(text_page)
DoModal returned 1" --no-chart-data --doc "$(doc text.xml)" --script "expect 1423 20; text 1423 35; click 227; apply; ok"

# The font dialog is the platform's, over the sheet: cancelled (Esc), it changes nothing.
case_ "text page: the font dialog cancelled sends nothing" 0 "DoModal returned 0" \
  --doc "$(doc text.xml)" --script "click 1421; cancel" --box-screenshot "$(winepath -w "$box")"
[ -s "$box" ] || { echo "FAIL the font dialog: no picture written"; failures=$((failures + 1)); }
rm -f "$box"

exit "$failures"
