#!/usr/bin/env bash
# Builds the Windows programs (nothing else) and runs the guard (Stayhold.exe) under Wine, in a
# prefix inside the build tree. Starts Xvfb when there is no display. Extra arguments go to Stayhold.exe; Ctrl+C ends the
# guard through WM_CLOSE, as the setup would.
# Usage: scripts/run.sh [--exit-after-ms=N] [--settings]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/install_deps.sh"
"$root/scripts/build.sh" programs

export STAYHOLD_BUILD="$root/build/windows"
export WINEPREFIX="$STAYHOLD_BUILD/run-prefix"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe=d"
wine=/usr/lib/wine/wine64
[ -x "$wine" ] || wine=$(command -v wine)

xvfb_pid=""
if [ -z "${DISPLAY:-}" ]; then
  Xvfb :77 -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
  xvfb_pid=$!
  export DISPLAY=:77
  sleep 1
  echo "no display: started Xvfb on :77 (pid $xvfb_pid); watch it with a VNC bridge or screenshots"
fi

stop() {
  timeout 10 "$wine" "$STAYHOLD_BUILD/tests/wintool.exe" post StayholdHiddenWindow 0x0010 0 0 \
    >/dev/null 2>&1 || true
  sleep 1
  timeout 15 wineserver -k >/dev/null 2>&1 || true
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null || true
}
trap stop INT TERM

[ -d "$WINEPREFIX" ] || timeout 120 "$wine" wineboot -i >/dev/null 2>&1
echo "running Stayhold.exe $* (log: $WINEPREFIX/drive_c/users/$(id -un)/AppData/Local/Stayhold/logs/stayhold.log)"
status=0
"$wine" "$STAYHOLD_BUILD/Stayhold.exe" "$@" || status=$?
[ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null || true
exit "$status"
