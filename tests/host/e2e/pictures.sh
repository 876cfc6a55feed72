#!/bin/sh
# Pictures of the line study pages as a user sees them: each page alone in the platform's sheet,
# opened by orvhost through COM with a synthetic chart (intraday for the Intra pages), written to
# <out>/<page>.png for a person to look at. Fails when a page shows no sheet or no picture.
#   pictures.sh <orvhost.exe> <output folder>
set -u
host=$1
out=$2
mkdir -p "$out"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

# doc <page> <wrapper element> <intraday 0|1>: a study with two control points and every option on.
doc() {
  if [ "$3" = 1 ]; then
    points='<CXYCoord><XY_xPos>60</XY_xPos><XY_yValue>101.5</XY_yValue><XY_lDate>45301</XY_lDate><XY_lTime>600</XY_lTime><XY_lSec>36015</XY_lSec><XY_lSnap>-1</XY_lSnap></CXYCoord><CXYCoord><XY_xPos>90</XY_xPos><XY_yValue>103.25</XY_yValue><XY_lDate>45301</XY_lDate><XY_lTime>750</XY_lTime><XY_lSec>45005</XY_lSec><XY_lSnap>0</XY_lSnap></CXYCoord>'
  else
    points='<CXYCoord><XY_xPos>379</XY_xPos><XY_yValue>104.25</XY_yValue><XY_lDate>45301</XY_lDate><XY_lTime>0</XY_lTime><XY_lSec>0</XY_lSec><XY_lSnap>-1</XY_lSnap></CXYCoord><CXYCoord><XY_xPos>429</XY_xPos><XY_yValue>112.5</XY_yValue><XY_lDate>45371</XY_lDate><XY_lTime>0</XY_lTime><XY_lSec>0</XY_lSec><XY_lSnap>0</XY_lSnap></CXYCoord>'
  fi
  cat <<XML
<PropertySheet Name="LSPs" Title="$1" Kind="1"><PropertyPageList><PropertyPage Name="$1">
<SnapEntryList><SnapEntry>0</SnapEntry><SnapEntry>1</SnapEntry><SnapEntry>2</SnapEntry><SnapEntry>3</SnapEntry><SnapEntry>4</SnapEntry><SnapEntry>5</SnapEntry></SnapEntryList>
<VertexButtons Show="Yes"/><Mean>107.125</Mean><MaxPos>300</MaxPos>
<$2><CLineStudy><PosLock>FALSE</PosLock><LS_CtrlPtList>$points</LS_CtrlPtList></CLineStudy>
<LSTrl_Extendpt1>1</LSTrl_Extendpt1><LSTrl_Extendpt2>0</LSTrl_Extendpt2><Multiplier>2.0</Multiplier></$2>
</PropertyPage></PropertyPageList></PropertySheet>
XML
}

for row in LsPgDayTrend:CTrendline:0 LsPgIntraTrend:CTrendline:1 LsPgDayHorz:CTrendline:0 \
           LsPgDayVert:CTrendline:0 LsPgIntraVert:CTrendline:1 LsPgDayLRC:CLinRegChan:0 \
           LsPgIntraLRC:CLinRegChan:1 LsPgDayVWAP:VolWgtAvgPrice:0 LsPgIntraVWAP:VolWgtAvgPrice:1; do
  page=${row%%:*}
  rest=${row#*:}
  wrapper=${rest%%:*}
  intraday=${rest#*:}
  doc "$page" "$wrapper" "$intraday" >"$work/$page.xml"
  set -- --doc "$(winepath -w "$work/$page.xml")" --screenshot "$(winepath -w "$out/$page.png")"
  [ "$intraday" = 1 ] && set -- "$@" --intraday
  rm -f "$out/$page.png"
  wine "$host" "$@" >"$work/out.txt" 2>&1
  if [ -s "$out/$page.png" ] && grep -q "DoModal returned 0" "$work/out.txt"; then
    echo "ok   $page: $out/$page.png"
  else
    echo "FAIL $page:"
    cat "$work/out.txt"
    failures=$((failures + 1))
  fi
done
exit "$failures"
