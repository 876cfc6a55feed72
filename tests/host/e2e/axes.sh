#!/bin/sh
# The axes pages of OrvChartDlgs.dll in orvhost's own property frame, inside a Wine session: each
# page object made straight from the DLL by its class id, its properties served from a document,
# the user's changes by script, and exactly what the page hands back. XML is compared without
# the line breaks and tabs that the DOM's markup may carry.
#   axes.sh <orvhost.exe> <OrvChartDlgs.dll> <folder of the documents>
set -u
host=$1
dll=$(winepath -w "$2")
docs=$3
failures=0
out=$(mktemp) err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

. "$(dirname "$0")/orvhost-case.sh"

# --- GenXAxisPpg ---
page_class="{9F9E8A73-AFC6-4004-BC66-8359D19223AE}"
doc=$(winepath -w "$docs/xaxis.xml")
read="GetPageProperties: 0 GenXAxisPpg found"
# xsent <margin> <lock> <automatic> <date id> <time id>
xsent() {
  printf 'SetPageProperties: 0 <GenXAxisPpg><XAxisMarginBars>%s</XAxisMarginBars><XAxisScrollVisible>%s</XAxisScrollVisible><XAxisAutoCategory>%s</XAxisAutoCategory><XAxisDateFormat>%s</XAxisDateFormat><XAxisTimeFormat>%s</XAxisTimeFormat></GenXAxisPpg>' "$1" "$2" "$3" "$4" "$5"
}

# Every change tells the site (orvhost's "text" is two: the new text and its notification); on Apply the page is clean (4) as soon as its values pass, before
# the chart gets them.
page_case "x axis: margin, time and date rows, then OK" 1 "$read
OnStatusChange: 1
OnStatusChange: 1
OnStatusChange: 1
OnStatusChange: 1
OnStatusChange: 4
$(xsent 12 1 0 112 256)
Frame returned 1" --doc "$doc" --script "expect 2742 5; expect 2750 2:15 PM; text 2742 12; select 2750 1; select 2748 6; ok"

page_case "x axis: lock to its third state, automatic labels, Apply, Cancel" 0 "$read
OnStatusChange: 1
OnStatusChange: 1
OnStatusChange: 4
$(xsent 5 2 1 48 512)
Frame returned 0" --doc "$doc" --script "click 2744; click 2746; apply; cancel"

page_case "x axis: OK without a change sends nothing" 1 "$read
Frame returned 1" --doc "$doc" --script "ok"

# --- GenYAxisPpg ---
page_class="{97DEF558-6200-46BF-AD42-BF49C48272C3}"
doc=$(winepath -w "$docs/yaxis.xml")
read="GetPageProperties: 0 GenYAxisPpg found"
# ysent <drag mode> <pin max> <pin min> <max>: the document after the user's changes.
ysent() {
  printf 'SetPageProperties: 0 <GenYAxisPpg><CoordSys>0</CoordSys><DragMode>%s</DragMode><Inverted>0</Inverted><PinMax>%s</PinMax><PinMin>%s</PinMin><PinMaj>0</PinMaj><PinMnr>0</PinMnr><Precision>0</Precision><Format>2</Format><Market>0</Market><MaxRange>%s</MaxRange><MinRange>98.500000</MinRange><MajorSpace>10.000000</MajorSpace><MinorSpace>2.500000</MinorSpace><PctOrigin>0</PctOrigin><PctAvg>3</PctAvg></GenYAxisPpg>' "$1" "$2" "$3" "$4"
}

page_case "y axis: pin the maximum and type it in thousands, then OK" 1 "$read
OnStatusChange: 1
OnStatusChange: 1
OnStatusChange: 1
OnStatusChange: 4
$(ysent 1 1 1 1234.500000)
Frame returned 1" --doc "$doc" --script "expect 2785 150.25; expect 2786 98.50; click 2781; text 2785 1,234.5; ok"

# "Scroll" pins both limits; the values shown are exchanged back into the edits (each a change).
drop_lines="^OnStatusChange: 1\$" page_case "y axis: Scroll pins both limits" 1 "$read
OnStatusChange: 4
$(ysent 0 1 1 150.250000)
Frame returned 1" --doc "$doc" --script "click 2796; expect 2781 checked; ok"

echo "$failures failed"
[ "$failures" = 0 ]
