#!/bin/sh
# The chart draw page of OrvChartDlgs.dll in orvhost's own property frame, inside a Wine session:
# the page object made straight from the DLL by its class id, its properties served from a
# document, the user's changes by script, and exactly what the page hands back. XML is compared
# without the line breaks and tabs that the DOM's markup may carry.
#   chartdraw.sh <orvhost.exe> <OrvChartDlgs.dll> <folder of the documents>
set -u
host=$1
dll=$(winepath -w "$2")
docs=$3
failures=0
out=$(mktemp) err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

. "$(dirname "$0")/orvhost-case.sh"

page_class="{6D73A8E6-1A90-438E-A317-B76226F7B7EA}"
doc=$(winepath -w "$docs/chart-draw.xml")
read="GetPageProperties: 0 ChartDrawPg found"
# The document has no "AnalyticsInfo": the analytics' colour buttons stay white and come back so.
analytics="<AnalyticsInfo><RagnarTails>0</RagnarTails><RagnarPeriods>5</RagnarPeriods><RagnarPercentUp>25</RagnarPercentUp><RagnarPercentDn>10</RagnarPercentDn><RagnarDoji>1</RagnarDoji><RagnarBCL>1</RagnarBCL><ColorDoji>16777215</ColorDoji><ColorBCL>16777215</ColorBCL><DojiPct>5.000000</DojiPct><BCLPCT>5.000000</BCLPCT><ShowCOGap>1</ShowCOGap><PctCOGap>5.000000</PctCOGap><ColorCOGap>16777215</ColorCOGap></AnalyticsInfo>"
# sent <weight> <shade mode> <transparency>: the line chart of the document after the user's changes.
sent() {
  printf 'SetPageProperties: 0 <ChartDrawPg><BaseChart><Chart><ChartShowPriceBox>1</ChartShowPriceBox><ChartProps><CP_DrawType>1</CP_DrawType><CP_TxtClrIdx>1</CP_TxtClrIdx><LineDots>0</LineDots><Ribbon>0</Ribbon><LineProps><LP Name="Line" Color="255" Weight="%s" Style="1" Flags="0"/></LineProps><ShadeProps><SP Name="Line" ShadeMode="%s" ShadeTransp="%s" Gradient="1"/></ShadeProps></ChartProps><PointFigure><PF_BoxUnits>1</PF_BoxUnits><PF_Reversal>3</PF_Reversal><PF_TickCount>1</PF_TickCount><PF_BoxSize>1.000000</PF_BoxSize></PointFigure><BarShowColors>0</BarShowColors><BarUpPcnt>20.000000</BarUpPcnt><BarDnPcnt>20.000000</BarDnPcnt><BarUpColor>11</BarUpColor><BarDnColor>12</BarDnColor>%s</Chart></BaseChart></ChartDrawPg>' "$1" "$2" "$3" "$analytics"
}

# The page tells the site once that it became dirty, however many changes follow; on Apply it is
# clean (4) as soon as its values are taken, before the chart gets them. A transparency above 100
# is sent as 100.
page_case "weight and transparency, then OK: sent once, the page clean" 1 "$read
OnStatusChange: 1
OnStatusChange: 4
$(sent 3 1 100)
Frame returned 1" --doc "$doc" --script "expect 2625 Dash ---------; select 2623 2; text 2881 150; ok"

page_case "shade off, Apply, Cancel" 0 "$read
OnStatusChange: 1
OnStatusChange: 4
$(sent 2 0 40)
Frame returned 0" --doc "$doc" --script "expect 227 checked; click 227; apply; cancel"

page_case "OK without a change: nothing sent" 1 "$read
Frame returned 1" --doc "$doc" --script "ok"

echo "$failures failed"
[ "$failures" = 0 ]
