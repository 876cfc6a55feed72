# One case of orvhost under Wine, for the scripts that source this file:
#   case_ <name> <expected exit code> <expected output> <orvhost arguments...>
# runs "$host" with the arguments, writing its standard output and error to the files "$out"
# and "$err", and compares its exit code and output (carriage returns dropped, and the \r \n \t
# that the DOM's markup may carry in event texts) with what is expected. It prints "ok   <name>",
# or "FAIL <name>" with what came and what was expected, and counts the failure in $failures.
# The output is standard output followed by standard error; with apart_stderr=1 it is standard
# output alone, and standard error is shown after it on a failure. With drop_lines=<pattern>
# (grep's), the lines of the output that match it are left out of the comparison.
case_() {
  case_name=$1 case_code=$2 case_expected=$3
  shift 3
  wine "$host" "$@" >"$out" 2>"$err"
  case_rc=$?
  if [ "${apart_stderr:-0}" = 1 ]; then
    case_actual=$(tr -d '\r' <"$out" | sed -e 's/\\[rnt]//g')
  else
    case_actual=$( (cat "$out"; cat "$err") | tr -d '\r' | sed -e 's/\\[rnt]//g')
  fi
  if [ -n "${drop_lines:-}" ]; then case_actual=$(printf '%s\n' "$case_actual" | grep -v -e "$drop_lines"); fi
  if [ "$case_actual" = "$case_expected" ] && [ "$case_rc" = "$case_code" ]; then
    echo "ok   $case_name"
  else
    echo "FAIL $case_name: exit code $case_rc (expected $case_code), output:"
    echo "$case_actual"
    [ "${apart_stderr:-0}" = 1 ] && cat "$err"
    echo "expected:"
    echo "$case_expected"
    failures=$((failures + 1))
  fi
}

# page_case <name> <expected exit code> <expected output> <more orvhost arguments...>: one case
# of orvhost as the property frame of the page class $page_class from the DLL $dll.
page_case() {
  page_case_name=$1 page_case_code=$2 page_case_expected=$3
  shift 3
  case_ "$page_case_name" "$page_case_code" "$page_case_expected" --activate direct --dll "$dll" --page "$page_class" "$@"
}
