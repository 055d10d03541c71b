# Shared harness for everything under Wine, sourced by the scenarios and run_in_prefix.sh (needs
# STAYHOLD_BUILD): a fresh WINEPREFIX copied from a template, an Xvfb when there is no display and
# a persistent wineserver per suite, all ended by their ids at exit; artifacts kept on failure.
set -u

: "${STAYHOLD_BUILD:?STAYHOLD_BUILD must name the Windows build tree}"
WINE64=/usr/lib/wine/wine64
[ -x "$WINE64" ] || WINE64=$(command -v wine)
export WINEDEBUG=-all
# No Mono or Gecko prompts, and a crash must never open the debugger in a headless run.
export WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe=d"
WINE_TIMEOUT=${WINE_TIMEOUT:-60}
APP="$STAYHOLD_BUILD/Stayhold.exe"
_xvfb_pid="" _wineserver_pid=""

# A random display number: suites run side by side, and a number just freed must not be reused.
_start_xvfb() {
  [ -n "${DISPLAY:-}" ] && return 0
  local fifo candidate number
  fifo=$(mktemp -u)
  mkfifo "$fifo"
  for _ in 1 2 3 4 5 6 7 8; do
    candidate=$((100 + RANDOM % 800))
    [ -e "/tmp/.X11-unix/X$candidate" ] || [ -e "/tmp/.X$candidate-lock" ] && continue
    Xvfb ":$candidate" -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$fifo" >/dev/null 2>&1 &
    _xvfb_pid=$!
    # The server writes its number once it accepts clients; one that cannot listen ends at once.
    if read -r -t 20 number <"$fifo" && [ "$number" = "$candidate" ]; then
      rm -f "$fifo"
      export DISPLAY=":$number"
      return 0
    fi
    _end "$_xvfb_pid"
    _xvfb_pid=""
  done
  rm -f "$fifo"
  fail "harness: Xvfb did not start"
}

# Made once per build tree; suites copy it. Wine links Desktop, Documents and the like to the
# Linux home; tests must write inside the prefix only, so the links become folders of their own.
_make_template_prefix() {
  local template="$STAYHOLD_BUILD/wine-template"
  (
    flock 9
    if [ ! -f "$template/.ready-2" ]; then
      rm -rf "$template"
      mkdir -p "$template"
      WINEPREFIX="$template" timeout -k 5 120 "$WINE64" wineboot -i >/dev/null 2>&1 || exit 1
      WINEPREFIX="$template" timeout -k 5 60 wineserver -w
      find "$template/drive_c/users" -mindepth 2 -maxdepth 2 -type l | while read -r link; do
        rm -f "$link" && mkdir -p "$link"
      done
      touch "$template/.ready-2"
    fi
  ) 9>"$STAYHOLD_BUILD/wine-template.lock" || fail "harness: the template prefix could not be made"
}

harness_start() {
  SUITE="$1"
  SUITE_DIR="$STAYHOLD_BUILD/wine-runs/$SUITE"
  ARTIFACTS="$STAYHOLD_BUILD/test-artifacts/$SUITE"
  rm -rf "$SUITE_DIR" "$ARTIFACTS"
  mkdir -p "$SUITE_DIR" "$ARTIFACTS"
  trap _harness_stop EXIT
  _start_xvfb
  _make_template_prefix
  cp -a "$STAYHOLD_BUILD/wine-template" "$SUITE_DIR/prefix"
  export WINEPREFIX="$SUITE_DIR/prefix"
  wineserver -f -p >/dev/null 2>&1 &
  _wineserver_pid=$!
  WIN_USER=$(ls "$WINEPREFIX/drive_c/users" | grep -v -x -e Public -e Default | head -n 1)
  LOG="$(data_dir)/logs/stayhold.log"
  # Prove that windows can be made, so that no test meets a display that is not ready.
  wait_for 30 wintool window probe || fail "harness: Wine cannot create a window on $DISPLAY"
}

_end() { kill "$1" 2>/dev/null && wait "$1" 2>/dev/null; }

_harness_stop() {
  local status=$?
  if [ "$status" -ne 0 ]; then
    [ -n "${LOG:-}" ] && cp "$LOG" "$(data_dir)/config.ini" "$ARTIFACTS/" 2>/dev/null
    shot failure >/dev/null 2>&1
    echo "harness: suite $SUITE failed; artifacts in $ARTIFACTS" >&2
  fi
  if [ -n "$_wineserver_pid" ]; then
    timeout -k 2 15 wineserver -k >/dev/null 2>&1
    _end "$_wineserver_pid"
  fi
  [ -n "$_xvfb_pid" ] && _end "$_xvfb_pid"
  [ "$status" -eq 0 ] && rm -rf "$SUITE_DIR"
  exit "$status"
}

wine_exe() { timeout -k 5 "$WINE_TIMEOUT" "$WINE64" "$@"; }

wintool() {
  wine_exe "$STAYHOLD_BUILD/tests/wintool.exe" "$@" | tr -d '\r'
  return "${PIPESTATUS[0]}"
}

# Prints the full exit code, or "timeout"; a failure to start fails the suite.
win_exit_code() {
  local limit="$1" out
  shift
  out=$(wintool run "$limit" "$@")
  case "$out" in
    exit=* | timeout) echo "${out#exit=}" ;;
    "") echo "no-answer" ;;  # the helper itself was ended, as at a suite's clean-up
    *) fail "could not start $* ($out)" ;;
  esac
}

window_up() { wintool find StayholdHiddenWindow >/dev/null; }

start_guard() {
  win_exit_code $(($1 + 20000)) "$APP" --exit-after-ms="$1" "${@:2}" >"$SUITE_DIR/guard.code" &
  guard_pid=$!
  wait_for 20 window_up || fail "the hidden window did not appear"
}

guard_ends() {
  wait "$guard_pid"
  [ "$(cat "$SUITE_DIR/guard.code")" = 0 ] || fail "the guard ended with $(cat "$SUITE_DIR/guard.code")"
}

stop_guard() {
  wintool post StayholdHiddenWindow 0x0010 0 0 >/dev/null || fail "could not post WM_CLOSE"
  guard_ends
}

expect_query() {
  local got
  got=$(wintool send StayholdHiddenWindow 0x0011 0 "$1" | sed -n 's/^result=//p')
  [ "$got" = "$2" ] || fail "$3: WM_QUERYENDSESSION($1) answered '$got', expected $2"
}

log_has() { [ -f "$LOG" ] && grep -q -- "  $1\$" "$LOG"; }
expect_log() { wait_for "${2:-0}" log_has "$1" || fail "no '$1' line in the log"; }
log_lines() { [ -f "$LOG" ] && grep -c '' "$LOG" || echo 0; }

data_dir() { echo "$WINEPREFIX/drive_c/users/$WIN_USER/AppData/Local/Stayhold"; }
win_path() { echo "Z:$1" | tr '/' '\\'; }  # Wine maps / to Z:
shot() { import -window root "$ARTIFACTS/$1.png" && echo "$ARTIFACTS/$1.png"; }
fail() { echo "FAIL: $*" >&2; exit 1; }

# Runs until the condition command succeeds or the seconds run out.
wait_for() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ "$SECONDS" -ge "$end" ] && return 1
    sleep 0.1
  done
}
