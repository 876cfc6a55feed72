#!/bin/sh
# Runs one Windows program under Wine: CMake's emulator for the win64 tree, so ctest runs
# the Windows tests through it. tools/wine-session.sh provides the prefix, the display and a
# wineserver already running (so the program's pipes aren't inherited by a server ctest would wait on).
if [ -z "${WINEPREFIX:-}" ] || [ -z "${DISPLAY:-}" ]; then
  echo "wine-run: no Wine session; run the Windows tests as: tools/wine-session.sh ctest --preset win64" >&2
  exit 2
fi
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=;winemenubuilder.exe=d}"
exec wine "$@"
