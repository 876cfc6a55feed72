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

# Grid cells of the newer palette: 33 is blue (RGB(0,0,255)), 27 is red (RGB(255,0,0)), 3 is a
# pale green (RGB(204,255,204)).
fibo() {
  printf '%s' 'StatusEvent: <PropertySheet Name="LSPs"><PropertyPageList><PropertyPage Name="LsPgLineFibo"><CFibonacci><TVLineProps><TVector><Item_0><LineProp><LineName>0.0</LineName><LineVis>TRUE</LineVis><LineColor>RGB(0,0,255)</LineColor><LineWeight>1</LineWeight><LineStyle>1</LineStyle><LineFlag>0</LineFlag></LineProp></Item_0><Item_1><LineProp><LineName>38.2</LineName><LineVis>TRUE</LineVis><LineColor>RGB(255,165,0)</LineColor><LineWeight>1</LineWeight><LineStyle>1</LineStyle><LineFlag>0</LineFlag></LineProp></Item_1><Item_2><LineProp><LineName>50.0</LineName><LineVis>FALSE</LineVis><LineColor>RGB(0,204,0)</LineColor><LineWeight>1</LineWeight><LineStyle>2</LineStyle><LineFlag>0</LineFlag></LineProp></Item_2><Item_3><LineProp><LineName>61.8</LineName><LineVis>TRUE</LineVis><LineColor>RGB(255,165,0)</LineColor><LineWeight>1</LineWeight><LineStyle>1</LineStyle><LineFlag>0</LineFlag></LineProp></Item_3><Item_4><LineProp><LineName>100.0</LineName><LineVis>TRUE</LineVis><LineColor>RGB(255,165,0)</LineColor><LineWeight>2</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_4><Item_5><LineProp><LineName></LineName><LineVis>TRUE</LineVis><LineColor>RGB(0,0,0)</LineColor><LineWeight>1</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_5><Item_6><LineProp><LineName></LineName><LineVis>TRUE</LineVis><LineColor>RGB(0,0,0)</LineColor><LineWeight>1</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_6><Item_7><LineProp><LineName></LineName><LineVis>TRUE</LineVis><LineColor>RGB(0,0,0)</LineColor><LineWeight>1</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_7><Item_8><LineProp><LineName></LineName><LineVis>TRUE</LineVis><LineColor>RGB(0,0,0)</LineColor><LineWeight>1</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_8><Item_9><LineProp><LineName></LineName><LineVis>TRUE</LineVis><LineColor>RGB(0,0,0)</LineColor><LineWeight>1</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_9></TVector></TVLineProps><LSFib_ExtendRetr>FALSE</LSFib_ExtendRetr><LSFib_ShowLabels>TRUE</LSFib_ShowLabels><ShowPriceBox>TRUE</ShowPriceBox><Multiplier><TVector><Item_0>0.000000</Item_0><Item_1>0.500000</Item_1><Item_2>0.500000</Item_2><Item_3>0.618000</Item_3><Item_4>1.000000</Item_4><Item_5>0.000000</Item_5><Item_6>0.000000</Item_6><Item_7>0.000000</Item_7><Item_8>0.000000</Item_8><Item_9>0.000000</Item_9></TVector></Multiplier></CFibonacci></PropertyPage></PropertyPageList></PropertySheet>'
}
pfork() {
  printf '%s' 'StatusEvent: <PropertySheet Name="LSPs"><PropertyPageList><PropertyPage Name="LsPgLinePfork"><CPitchfork><TVLineProps><TVector><Item_0><LineProp><LineName>Median</LineName><LineVis>TRUE</LineVis><LineColor>RGB(255,0,0)</LineColor><LineWeight>2</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_0><Item_1><LineProp><LineName>Upper</LineName><LineVis>TRUE</LineVis><LineColor>RGB(255,165,0)</LineColor><LineWeight>1</LineWeight><LineStyle>1</LineStyle><LineFlag>0</LineFlag></LineProp></Item_1><Item_2><LineProp><LineName>Lower</LineName><LineVis>TRUE</LineVis><LineColor>RGB(255,165,0)</LineColor><LineWeight>1</LineWeight><LineStyle>1</LineStyle><LineFlag>0</LineFlag></LineProp></Item_2><Item_3><LineProp><LineName>Warning</LineName><LineVis>FALSE</LineVis><LineColor>RGB(255,0,0)</LineColor><LineWeight>1</LineWeight><LineStyle>2</LineStyle><LineFlag>0</LineFlag></LineProp></Item_3></TVector></TVLineProps><Multiplier><TVector><Item_0>0.000000</Item_0><Item_1>0.500000</Item_1><Item_2>0.750000</Item_2><Item_3>1.500000</Item_3></TVector></Multiplier></CPitchfork></PropertyPage></PropertyPageList></PropertySheet>'
}
parallel() {
  printf '%s' 'StatusEvent: <PropertySheet Name="LSPs"><PropertyPageList><PropertyPage Name="LsPgLineParallel"><CParallel><TVLineProps><TVector><Item_0><LineProp><LineName>Top</LineName><LineVis>FALSE</LineVis><LineColor>RGB(0,153,0)</LineColor><LineWeight>1</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_0><Item_1><LineProp><LineName>Middle</LineName><LineVis>TRUE</LineVis><LineColor>RGB(204,255,204)</LineColor><LineWeight>3</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_1><Item_2><LineProp><LineName>Bottom</LineName><LineVis>TRUE</LineVis><LineColor>RGB(255,0,0)</LineColor><LineWeight>1</LineWeight><LineStyle>0</LineStyle><LineFlag>0</LineFlag></LineProp></Item_2></TVector></TVLineProps><ShowPriceBox>TRUE</ShowPriceBox></CParallel></PropertyPage></PropertyPageList></PropertySheet>'
}
case_ "three line tabs edited, a colour from each real colour button: each study sent once" 1 "$(fibo)
$(pfork)
$(parallel)
DoModal returned 1" --doc "$(doc line-tabs.xml)" --script "text 2415 0.5; click 2421; select 2403 1; color 2402 33; apply;
tab 1; text 2425 0.75; color 2432 27;
tab 2; click 2401; select 2414 2; color 2412 3; ok"

exit "$failures"
