#!/usr/bin/env bash
# Runs one command (usually ctest) inside a Wine session of the project's own:
#   - a 64-bit prefix, made on first use, with Wine's X11 driver unmanaged (no window manager
#     needed, so closing a top-level window doesn't wait 2 seconds),
#   - an X display: a private Xvfb on a free display, or the caller's $DISPLAY with --display,
#   - a persistent wineserver and the desktop process started up front with their output
#     redirected, so they hold none of the pipes of the programs run later (ctest's children)
#     and ctest doesn't wait on them.
# Afterwards the wineserver and the Xvfb are stopped whatever the outcome. Exit code: the command's.
#
#   tools/wine-session.sh [--display] [--prefix DIR] [--] command [args...]
#
# Environment: ORV_WINEPREFIX (default build/win64/wineprefix), ORV_XVFB_SCREEN (1280x1024x24).
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
prefix=${ORV_WINEPREFIX:-$root/build/win64/wineprefix}
use_display=0

while [ $# -gt 0 ]; do
  case "$1" in
    --display) use_display=1; shift ;;
    --prefix) prefix=$2; shift 2 ;;
    --) shift; break ;;
    -h|--help) sed -n '2,14p' "$0"; exit 0 ;;
    *) break ;;
  esac
done
if [ $# -eq 0 ]; then
  echo "wine-session: no command given (try: $0 ctest --preset win64)" >&2
  exit 2
fi
for tool in wine wineserver wineboot; do
  command -v "$tool" >/dev/null || { echo "wine-session: $tool not found; run tools/deps.sh" >&2; exit 2; }
done

mkdir -p "$(dirname "$prefix")"
prefix=$(cd "$(dirname "$prefix")" && pwd)/$(basename "$prefix")
export WINEPREFIX=$prefix WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
# No Mono or Gecko installers (nothing here uses them, and they would ask for a download),
# no desktop menu entries written into the user's home.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=;winemenubuilder.exe=d}

# One session per prefix at a time: a session's end stops the prefix's wineserver.
exec 9>"$prefix.lock"
if ! flock -n 9; then
  echo "wine-session: waiting for another session on $prefix to end" >&2
  flock 9
fi

xvfb_pid=
log_dir=$(mktemp -d "${TMPDIR:-/tmp}/orv-wine-session.XXXXXX")

cleanup() {
  local rc=$?
  # The server first, while the display still answers; then the display.
  wineserver -k >/dev/null 2>&1 || true
  wineserver -w >/dev/null 2>&1 || true
  if [ -n "$xvfb_pid" ]; then
    kill "$xvfb_pid" 2>/dev/null || true
    wait "$xvfb_pid" 2>/dev/null || true
  fi
  rm -rf "$log_dir"
  return $rc
}
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

if [ "$use_display" = 1 ]; then
  : "${DISPLAY:?wine-session: --display given but DISPLAY is not set}"
else
  command -v Xvfb >/dev/null || { echo "wine-session: Xvfb not found; run tools/deps.sh" >&2; exit 2; }
  # Xvfb picks a free display itself and writes its number to fd 3: no race with other sessions.
  Xvfb -displayfd 3 -screen 0 "${ORV_XVFB_SCREEN:-1280x1024x24}" -nolisten tcp \
    3>"$log_dir/display" </dev/null >"$log_dir/xvfb.log" 2>&1 9>&- &
  xvfb_pid=$!
  for _ in $(seq 1 100); do
    [ -s "$log_dir/display" ] && break
    kill -0 "$xvfb_pid" 2>/dev/null || break
    sleep 0.1
  done
  if [ ! -s "$log_dir/display" ]; then
    echo "wine-session: Xvfb did not start:" >&2
    cat "$log_dir/xvfb.log" >&2
    exit 3
  fi
  export DISPLAY=:$(tr -d '[:space:]' <"$log_dir/display")
fi

if [ ! -f "$WINEPREFIX/system.reg" ]; then
  echo "wine-session: making the Wine prefix $WINEPREFIX (first use, about a minute)" >&2
  if ! wineboot -i >"$log_dir/wineboot.log" 2>&1 9>&-; then
    cat "$log_dir/wineboot.log" >&2
    echo "wine-session: wineboot failed" >&2
    exit 3
  fi
  wineserver -w
fi

# Wine draws captions and their buttons (the close button is the Marlett glyph "r") and the
# dialog font ("MS Shell Dlg" is Tahoma) with its own TrueType fonts. Debian's fonts-wine
# installs them, but this Wine loads only the bitmap ones from there: the TrueType ones go into
# the prefix's font folder, where every Windows program finds its fonts.
if [ -d /usr/share/wine/fonts ]; then
  for font in /usr/share/wine/fonts/*.ttf; do
    [ -e "$font" ] || continue
    [ -e "$WINEPREFIX/drive_c/windows/Fonts/$(basename "$font")" ] || cp "$font" "$WINEPREFIX/drive_c/windows/Fonts/"
  done
fi

# Persistent server, detached from our pipes, then the prefix brought up to date. Plain wineboot:
# "wineboot -i" on a prefix that exists starts a second service manager, and the RPC service then
# never starts; every COM creation that may reach a local server (the host services are made with
# all server contexts) would then wait 10 seconds for it. So the RPC service is started up front.
wineserver -p </dev/null >/dev/null 2>&1 9>&-
wineboot </dev/null >/dev/null 2>&1 9>&- || true
wine net start rpcss </dev/null >/dev/null 2>&1 9>&- || true

# Unmanaged windows under Xvfb (no window manager there); managed ones on a real desktop,
# so its window manager can move and close them. Written only when it changes.
managed=N
[ "$use_display" = 1 ] && managed=Y
if ! grep -A3 -F '[Software\\Wine\\X11 Driver]' "$WINEPREFIX/user.reg" 2>/dev/null \
     | grep -qx "\"Managed\"=\"$managed\""; then
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d $managed /f </dev/null >/dev/null 2>&1 9>&-
fi

# The desktop process (explorer) starts with the first program that needs a window and keeps
# that program's output pipes: started here, detached, ctest never waits on it.
wine rundll32.exe user32.dll,GetDesktopWindow </dev/null >/dev/null 2>&1 9>&- || true

set +e
# The lock stays with this script: nothing the command leaves behind holds it.
"$@" 9>&-
rc=$?
set -e
exit $rc
