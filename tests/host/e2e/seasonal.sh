#!/bin/sh
# The seasonal chart wizard end to end through orvhost, inside a Wine session: COM activation,
# the platform's wizard with the twelve pages, scripted input (expect reads the pages as a user
# does), the one StatusEvent after Finish compared exactly, and the current user's registry key
# "Software\ZEL\Chart" where the wizard keeps its history: listed after each Finish, exported
# before and after each Cancel and compared byte for byte.
#   seasonal.sh <orvhost.exe> <folder of the documents>
#
# The cases run in order on one registry: the key is removed first, so the first run sees no
# history, and later runs take up what earlier ones left.
#
# The current year: the Years and futures pages list years from it, and a first run's season lies
# in it, so the expectations are computed from the year at the start. Should the year turn while
# the cases run, the outcome could not be told right from wrong: the test then says so and is
# skipped (exit code 77), never passed or failed. Documents with a Context (seasonal-context.xml)
# and the count form don't depend on the year at all.
set -u
host=$1
docs=$2
failures=0
work=$(mktemp -d)
out=$work/out err=$work/err
trap 'rm -rf "$work"' EXIT

. "$(dirname "$0")/orvhost-case.sh"

doc() { winepath -w "$docs/$1"; }

key='HKCU\Software\ZEL\Chart'
clear_key() { wine reg delete "$key" /f >/dev/null 2>&1 || :; }
# The key as reg exports it; an empty file when there is no key.
export_key() { wine reg export "$key" "$(winepath -w "$1")" /y >/dev/null 2>&1 || : >"$1"; }
# The key's values, one a line, sorted by name as the registry keeps them.
values() { wine reg query "$key" 2>/dev/null | tr -d '\r' | sed -n 's/^    //p'; }

Y=$(date +%Y)
y() { echo $((Y - $1)); }
# The automation date (day 0 = 30 December 1899) of a calendar date YYYY-MM-DD.
serial() { echo $(($(date -u -d "$1" +%s) / 86400 + 25569)); }

# The wizard's document as it comes back: the request's PropertySheet, then what Finish adds.
pages() {
  for page in Season Years YrCount Form Fut1 Fut2 CashSprd SnglRootFut SnglInst SnglInstMid Mult Constr; do
    printf '<PropertyPage Name="SznWzrdPg%s"/>' "$page"
  done
}
# sheet <YearEnterMode>: the request's part.
sheet() { printf '<PropertySheet Name="SznWzrdPs"><YearEnterMode>%s</YearEnterMode><PropertyPageList>%s</PropertyPageList>' "$1" "$(pages)"; }
# result <start month> <end month> <years back> [<symbol>|<year>]...: the months, the years back
# and the contracts.
result() {
  printf '<StartMonthIndex>%s</StartMonthIndex><EndMonthIndex>%s</EndMonthIndex><YearsBack>%s</YearsBack>' "$1" "$2" "$3"
  shift 3
  [ $# -gt 0 ] || return 0
  printf '<ContractList>'
  for contract in "$@"; do printf '<Contract Symbol="%s" Year="%s"/>' "${contract%|*}" "${contract##*|}"; done
  printf '</ContractList>'
}
# list <element> <item>...: <elementList><element>item</element>...</elementList>
list() {
  name=$1
  shift
  if [ $# -eq 0 ]; then printf '<%sList/>' "$name"; return; fi
  printf '<%sList>' "$name"
  for item in "$@"; do printf '<%s>%s</%s>' "$name" "$item" "$name"; done
  printf '</%sList>' "$name"
}
years() { [ $# -eq 0 ] && printf '<YearList/>' || { printf '<YearList>'; for year in "$@"; do printf '<Year>%s</Year>' "$year"; done; printf '</YearList>'; }; }
# context <form> <years back> <start> <end> "<sel years>" <symbol1> <symbol2>
#         <root1> <month1> <multiplier1> <root2> <month2> <multiplier2> "<years1>" "<years2>"
context() {
  printf '<Context><FormSel>%s</FormSel><YearsBack>%s</YearsBack><MonthDayWindow Start="%s" End="%s"/>' "$1" "$2" "$3" "$4"
  # shellcheck disable=SC2086 # the lists are words
  list SelYear $5
  printf '<SymbolList><Symbol>%s</Symbol><Symbol>%s</Symbol></SymbolList>' "$6" "$7"
  printf '<FutureList><Future Root="%s" Month="%s" Multiplier="%s"/><Future Root="%s" Month="%s" Multiplier="%s"/></FutureList>' \
    "$8" "$9" "${10}" "${11}" "${12}" "${13}"
  # shellcheck disable=SC2086
  printf '<YearListList>%s%s</YearListList></Context>' "$(years ${14})" "$(years ${15})"
}
started='SetValue: Displays/Seasonal ByWizard 1 4'
finished() { printf '%s\nStatusEvent: %s</PropertySheet>\nDoModal returned 1' "$started" "$1"; }
cancelled="$started
DoModal returned 0"

check_values() {
  actual=$(values)
  if [ "$actual" = "$2" ]; then
    echo "ok   $1"
  else
    echo "FAIL $1: the registry holds"
    echo "$actual"
    echo "expected:"
    echo "$2"
    failures=$((failures + 1))
  fi
}
sz() { printf '%s    REG_SZ    %s\n' "$1" "$2"; }
dword() { printf '%s    REG_DWORD    0x%x\n' "$1" "$2"; }

# cancelled_case <name> <document> <script>: no event, result 0, the key byte for byte as it was.
cancelled_case() {
  export_key "$work/before.reg"
  case_ "$1" 0 "$cancelled" --doc "$(doc "$2")" --script "$3"
  export_key "$work/after.reg"
  if cmp -s "$work/before.reg" "$work/after.reg"; then
    echo "ok   $1: the registry is as it was"
  else
    echo "FAIL $1: Cancel changed the registry"
    failures=$((failures + 1))
  fi
}

clear_key

# A first run, years from a list, Single Instrument: the defaults show (this year's whole season,
# the three most recent years, the first form, the default symbol); the user makes the season
# March to May, drops last year, types a symbol. One contract a year picked.
march=$(serial "$Y-03-01") may=$(serial "$Y-05-31")
case_ "a first run, Single Instrument: the defaults, then one contract a year" 1 "$(finished "$(sheet 0)$(result 3 5 5 "QCL|$Y" "QCL|$(y 2)")$(context 0 5 "$march" "$may" "0 2" QCL INDU.X @C 0 1.000000 @S 0 1.000000 "" "")")" \
  --doc "$(doc seasonal-years.xml)" --script "
    expect 4442 Jan; expect 4443 Dec; expect 4446 \"Season (for year $Y)\"; expect 4447 \"Jan/01/$Y - Dec/31/$Y\"
    select 4442 2; select 4443 4; expect 4447 \"Mar/01/$Y - May/31/$Y\"; next
    expect 4463 \"Total: 3\"; expect 4462 \"$Y, $(y 1), $(y 2)\"; toggle 4462 1; expect 4463 \"Total: 2\"; next
    expect 4482 checked; next
    expect 4583 MSFT; text 4583 QCL; finish"
check_values "a first run keeps its history" "$(dword Snl3WizFormSel 0)
$(sz Snl3WizFutureRoot_1 '@C?@S?0?0?1.000000?1.000000')
$(sz Snl3WizSelYears_1 2)
$(sz Snl3WizSelYears_2 0)
$(sz Snl3WizStartEndMonth_1 "$march?$may")
$(sz Snl3WizSymbol_1 'QCL?INDU.X')
$(dword Snl3WizYearsBack 5)"

# Cancel on a middle page, after changes on the pages before it.
cancelled_case "Cancel on the Contract Form page: nothing sent, nothing kept" seasonal-years.xml \
  "select 4442 10; next; toggle 4462 5; next; click 4485; cancel"

# The next run opens with the last run's choices, and Finish sends them as they stand.
case_ "a second run opens with the first run's choices" 1 "$(finished "$(sheet 0)$(result 3 5 5 "QCL|$Y" "QCL|$(y 2)")$(context 0 5 "$march" "$may" "0 2" QCL INDU.X @C 0 1.000000 @S 0 1.000000 "" "")")" \
  --doc "$(doc seasonal-years.xml)" --script "
    expect 4442 Mar; expect 4443 May; expect 4446 \"Season (for year $Y)\"; expect 4447 \"Mar/01/$Y - May/31/$Y\"; next
    expect 4462 \"$Y, $(y 2)\"; expect 4463 \"Total: 2\"; next
    expect 4482 checked; next
    expect 4583 QCL; finish"

# Single Root Futures: the root, month and contract years typed and picked on its page; one
# label a chart year, the i-th contract year with the i-th chart year.
case_ "Single Root Futures: root, month letter and contract year in each label" 1 "$(finished "$(sheet 0)$(result 3 5 5 "QNG$(y -1)H|$Y" "QNG$(y 1)H|$(y 2)")$(context 1 5 "$march" "$may" "0 2" QCL INDU.X QNG 2 1.000000 @S 0 1.000000 "$(y -1) $(y 1)" "")")" \
  --doc "$(doc seasonal-years.xml)" --script "
    next; next; click 4483; next
    expect 4603 @C; expect 4605 Jan; expect 4607 \"\"; expect 4609 \"Total: 0\"
    text 4603 QNG; select 4605 2; toggle 4607 9; toggle 4607 11; expect 4609 \"Total: 2\"; finish"

# Cash Spread: two symbols and the multipliers; the same label for every year. The futures' years,
# not on the path, go back as the history has them: most recent entry first, so reversed.
case_ "Cash Spread: the multiplier in front of its leg" 1 "$(finished "$(sheet 0)$(result 3 5 5 "2.50 * MSFT - INDU.X|$Y" "2.50 * MSFT - INDU.X|$(y 2)")$(context 2 5 "$march" "$may" "0 2" MSFT INDU.X QNG 2 2.500000 @S 0 1.000000 "$(y 1) $(y -1)" "")")" \
  --doc "$(doc seasonal-years.xml)" --script "
    next; next; expect 4483 checked; click 4484; next
    expect 4573 QCL; expect 4575 INDU.X; text 4573 MSFT; next
    expect 4563 1; expect 4565 1; text 4563 2.5; finish"

# Futures Spread: the first set's years come from its history (the same count as the chart
# years), the second set's from the Years page's picks.
case_ "Futures Spread: two sets of futures, a multiplier of 1 writes none" 1 "$(finished "$(sheet 0)$(result 3 5 5 "QCL$(y -1)Z - QHO${Y}X|$Y" "QCL$(y 1)Z - QHO$(y 2)X|$(y 2)")$(context 3 5 "$march" "$may" "0 2" MSFT INDU.X QCL 11 1.000000 QHO 10 1.000000 "$(y -1) $(y 1)" "$Y $(y 2)")")" \
  --doc "$(doc seasonal-years.xml)" --script "
    next; next; click 4485; next
    expect 4523 QNG; expect 4525 Mar; expect 4527 \"$(y -1), $(y 1)\"; expect 4529 \"Total: 2\"
    text 4523 QCL; select 4525 11; next
    expect 4543 @S; expect 4545 Jan; expect 4547 \"$Y, $(y 2)\"; text 4543 QHO; select 4545 10; next
    expect 4563 2.5; text 4563 1; finish"

# Cash Futures Spread: a symbol, then the second set of futures.
case_ "Cash Futures Spread: a symbol against the second set" 1 "$(finished "$(sheet 0)$(result 3 5 5 "PCACG00 - 0.50 * QHO${Y}X|$Y" "PCACG00 - 0.50 * QHO$(y 2)X|$(y 2)")$(context 4 5 "$march" "$may" "0 2" PCACG00 INDU.X QCL 11 1.000000 QHO 10 0.500000 "$(y 1) $(y -1)" "$Y $(y 2)")")" \
  --doc "$(doc seasonal-years.xml)" --script "
    next; next; click 4486; next
    expect 4613 MSFT; text 4613 PCACG00; next
    expect 4543 QHO; expect 4545 Nov; expect 4547 \"$Y, $(y 2)\"; next
    text 4565 0.5; finish"

# Back from Multipliers in a Cash Futures Spread lands on Under Construction, and Finish there
# builds no labels: the contracts go without symbols.
case_ "Cash Futures Spread, Back from Multipliers: Under Construction, contracts without symbols" 1 "$(finished "$(sheet 0)$(result 3 5 5 "|$Y" "|$(y 2)")$(context 4 5 "$march" "$may" "0 2" PCACG00 INDU.X QCL 11 1.000000 QHO 10 0.500000 "$(y -1) $(y 1)" "$Y $(y 2)")")" \
  --doc "$(doc seasonal-years.xml)" --script "
    next; next; expect 4486 checked; next; next; next; expect 4565 0.5; back
    expect 4500 \"Under Construction:\"; finish"

cancelled_case "Cancel on the First Futures page: nothing sent, nothing kept" seasonal-years.xml \
  "next; next; click 4485; next; text 4523 QXX; cancel"

# Back from Multipliers in a Futures Spread skips Second Futures: First Futures, as the user left it.
cancelled_case "Futures Spread, Back from Multipliers: First Futures as it was left; Cancel there" seasonal-years.xml \
  "next; next; click 4485; next; text 4523 QXY; next; next; back
   expect 4520 \"Select first set of futures contracts\"; expect 4523 QXY; cancel"

# Back from Multipliers with a field that doesn't read: the page names Under Construction, but the
# wizard asks the page before it changes page, the page says no for the same field, and the user
# stays on Multipliers with what was typed.
cancelled_case "Cash Spread, Back from Multipliers that don't read: the user stays; Cancel there" seasonal-years.xml \
  "next; next; click 4484; next; next; text 4563 two; back
   expect 4560 \"Contract conversion multipliers\"; expect 4563 two; cancel"

# Years given as a count, with the host's Context: Season, Year Count, Symbol. One contract
# without a year; the Context's season keeps its start year, and the end month carries it too.
# Nothing here depends on the current year.
in_context=$(sheet 1)$(result 11 2 3 "PCACG00|-1")$(context 0 3 45597 45350 1 PCACG00 QHO QCL 11 2.500000 QHO 5 1.000000 2021 2020)
case_ "a count of years with the host's Context: Season, Year Count, Symbol" 1 "$(finished "$in_context")" \
  --doc "$(doc seasonal-context.xml)" --script "
    expect 4442 Nov; expect 4443 Feb; expect 4446 \"Season (for year 2024)\"; expect 4447 \"Nov/01/2024 - Feb/28/2025\"; next
    expect 4623 12; text 4623 3; next; back; expect 4623 3; next
    expect 4583 PCACG00; finish"
in_history="$(dword Snl3WizFormSel 0)
$(sz Snl3WizFutureRoot_1 'QCL?QHO?11?5?2.500000?1.000000')
$(sz Snl3WizFutureYr1_1 2021)
$(sz Snl3WizFutureYr2_1 2020)
$(sz Snl3WizSelYears_1 1)
$(sz Snl3WizStartEndMonth_1 45597?45350)
$(sz Snl3WizSymbol_1 'PCACG00?QHO')
$(dword Snl3WizYearsBack 3)"
check_values "the count run's history replaces the last one" "$in_history"

# The same form without a Context takes all of it from that history.
case_ "a count of years from the history alone" 1 "$(finished "$(sheet 1)$(result 11 2 3 "PCACG00|-1")$(context 0 3 45597 45350 1 PCACG00 QHO QCL 11 2.500000 QHO 5 1.000000 2021 2020)")" \
  --doc "$(doc seasonal-count.xml)" --script "
    expect 4442 Nov; expect 4443 Feb; next; expect 4623 3; next; expect 4583 PCACG00; finish"
check_values "a run that changes nothing keeps the history as it was" "$in_history"

clear_key
# The year turned while the cases ran: the expectations may be a year off either way.
if [ "$(date +%Y)" != "$Y" ]; then
  echo "SKIP the year turned while the cases ran; run again"
  exit 77
fi
exit "$failures"
