#!/bin/sh
# The number format page of OrvChartDlgs.dll in orvhost's own property frame, inside a Wine
# session: the page object made straight from the DLL by its class id, its categories and format
# pair served from a document, the user's choices by script (the sample checked as it follows
# them), and exactly the format pair the page hands back.
#   numfmt.sh <orvhost.exe> <OrvChartDlgs.dll> <folder of the documents>
set -u
host=$1
dll=$(winepath -w "$2")
docs=$3
failures=0
out=$(mktemp) err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

. "$(dirname "$0")/orvhost-case.sh"

page_class="{FEA090CF-4F6F-4D07-AD9B-18D39D07F784}"
doc=$(winepath -w "$docs/numfmt.xml")
read="GetPageProperties: 0 NumFmtPpgX found"
# sent <format> <precision>: what the host gets on Apply.
sent() {
  printf 'SetPageProperties: 0 <NumFmtPpgX><Select Format="%s" Precision="%s"/></NumFmtPpgX>' "$1" "$2"
}

# 123.50390625 in 32nds is 123 16/32, "12316" in the market's short form; in eighths 123 4/8.
page_case "a fraction in eighths, then OK" 1 "$read
OnStatusChange: 1
$(sent 0 10)
OnStatusChange: 4
Frame returned 1" --doc "$doc" --script "expect 2761 Fraction; expect 2765 (1/32); expect 2763 12316; select 2765 3; expect 2763 1234; ok"

# Each change tells the site: the category, then the typed places (orvhost's text sets the edit's
# text, which is a change, and sends one more EN_CHANGE). The decimal places come from the
# category, then the user's.
page_case "decimal places, Apply, Cancel" 0 "$read
OnStatusChange: 1
OnStatusChange: 1
OnStatusChange: 1
$(sent 5 3)
OnStatusChange: 4
Frame returned 0" --doc "$doc" --script "select 2761 1; expect 2767 2; expect 2763 123.50; text 2767 3; expect 2763 123.504; apply; cancel"

# A date type is the format as well as the precision.
page_case "a date, then OK" 1 "$read
OnStatusChange: 1
OnStatusChange: 1
$(sent 64 64)
OnStatusChange: 4
Frame returned 1" --doc "$doc" --script "select 2761 2; expect 2763 05/01/02; select 2765 3; expect 2763 May-02; ok"

page_case "a time, then OK" 1 "$read
OnStatusChange: 1
OnStatusChange: 1
$(sent 256 256)
OnStatusChange: 4
Frame returned 1" --doc "$doc" --script "select 2761 3; select 2765 1; expect 2763 14:30; ok"

page_case "OK without a change: nothing sent" 1 "$read
Frame returned 1" --doc "$doc" --script "ok"

echo "$failures failed"
[ "$failures" = 0 ]
