#!/bin/sh
# Runs one Windows program under Wine in the project's test prefix.
# tools/wine-session.sh sets WINEPREFIX and DISPLAY and starts the wineserver before ctest.
: "${WINEPREFIX:?run Windows tests through tools/wine-session.sh}"
export WINEDEBUG="${WINEDEBUG:--all}"
exec wine "$@"
