#!/bin/sh
# The script client end to end, inside a Wine session: registers the DLL for the machine
# (OrvInstallOpts = 1), runs chartpages_client.js with Wine's cscript, then unregisters and puts
# OrvInstallOpts back as it was. Exit code: the script's (the number of mismatches), or 90+ when
# a step around it failed.
#   script_client.sh <OrvChartDlgs.dll> <chartpages_client.js>
set -u
dll=$(winepath -w "$1")
script=$(winepath -w "$2")
key='HKCU\Software\ZEL'

old=$(wine reg query "$key" /v OrvInstallOpts 2>/dev/null | tr -d '\r' | awk '$1 == "OrvInstallOpts" { print $3 }')
restore() {
  if [ -n "$old" ]; then
    wine reg add "$key" /v OrvInstallOpts /t REG_DWORD /d "$(printf '%d' "$old")" /f >/dev/null 2>&1
  else
    wine reg delete "$key" /v OrvInstallOpts /f >/dev/null 2>&1
  fi
}

wine reg add "$key" /v OrvInstallOpts /t REG_DWORD /d 1 /f >/dev/null 2>&1 || { echo "cannot set OrvInstallOpts"; exit 91; }
if ! wine regsvr32 /s "$dll"; then
  echo "regsvr32 failed"
  restore
  exit 92
fi

wine cscript //nologo "$script"
rc=$?

wine regsvr32 /s /u "$dll" || { echo "regsvr32 /u failed"; [ "$rc" -eq 0 ] && rc=93; }
restore
exit "$rc"
