#!/bin/sh
# A chart page in orvhost's own property frame, inside a Wine session: the page object made
# straight from a DLL by its class id, its properties served from a document by orvhost's chart
# object, the user's changes by script, and exactly what the page hands back on Apply and OK.
# The page is the frame tests' sample page (orv_sample_pages.dll); XML is compared without the
# line breaks and tabs that the DOM's markup may carry.
#   pageframe.sh <orvhost.exe> <orv_sample_pages.dll> <folder of the documents>
set -u
host=$1
dll=$(winepath -w "$2")
docs=$3
failures=0
out=$(mktemp) err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

. "$(dirname "$0")/orvhost-case.sh"

page_class="{5E1F0C2A-7B3D-4C8E-9A61-0D2B4F6A8C13}"
doc=$(winepath -w "$docs/sample-page.xml")
read="GetPageProperties: 0 SampleChartPg found"
sent() { printf 'SetPageProperties: 0 <SampleChartPg><Value>%s</Value><Flag>%s</Flag></SampleChartPg>' "$1" "$2"; }

# A text box's change comes twice (its own EN_CHANGE and the script's): the page tells the site
# each time.
page_case "a change, then OK: sent once, the page clean" 1 "$read
OnStatusChange: 1
OnStatusChange: 1
$(sent "typed" 1)
OnStatusChange: 4
Frame returned 1" --doc "$doc" --script "text 5101 typed; ok"

page_case "Apply, another change, Apply, Cancel: what was shown each time" 0 "$read
OnStatusChange: 1
$(sent "from the chart" 0)
OnStatusChange: 4
OnStatusChange: 1
OnStatusChange: 1
$(sent "again" 0)
OnStatusChange: 4
Frame returned 0" --doc "$doc" --script "click 5102; apply; text 5101 again; apply; cancel"

page_case "OK without a change: nothing sent" 1 "$read
Frame returned 1" --doc "$doc" --script "ok"

page_case "a change, then Cancel: nothing sent" 0 "$read
OnStatusChange: 1
Frame returned 0" --doc "$doc" --script "click 5102; cancel"

page_case "a document without the page's element: the defaults" 1 "GetPageProperties: 0 SampleChartPg not found
OnStatusChange: 1
$(sent "default" 1)
OnStatusChange: 4
Frame returned 1" --doc "$(winepath -w "$docs/no-sheet.xml")" --script "click 5102; ok"

echo "$failures failed"
[ "$failures" = 0 ]
