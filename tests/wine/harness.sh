# Shared harness for everything that runs under Wine; sourced by the scenario tests and by
# run_in_prefix.sh. Each suite gets a fresh WINEPREFIX copied from a template in the build tree,
# its own Xvfb when there is no display, and a persistent wineserver; all three are ended by their
# own ids when the suite exits. Artifacts (log, config.ini, screenshots) are kept on failure.
#
# Needs STAYHOLD_BUILD (the Windows build tree). Provides:
#   harness_start NAME      set up the suite; installs the clean-up trap
#   wine_exe EXE ARGS...    run a Windows program under a timeout (WINE_TIMEOUT, default 60 s)
#   wintool ARGS...         the helper of tests/wine/wintool.cpp
#   win_exit_code MS EXE... full 32-bit exit code of EXE, read inside Windows
#   data_dir, log_file      Linux paths of the user's Stayhold data folder and log
#   shot NAME               screenshot of the whole screen into the artifacts
#   fail MESSAGE            report and end the suite with failure
#   window_up               the guard's hidden window exists
set -u

: "${STAYHOLD_BUILD:?STAYHOLD_BUILD must name the Windows build tree}"
WINE64=/usr/lib/wine/wine64
[ -x "$WINE64" ] || WINE64=$(command -v wine)
export WINEDEBUG=-all
# No Mono or Gecko prompts, and a crash must never open the debugger in a headless run.
export WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe=d"
WINE_TIMEOUT=${WINE_TIMEOUT:-60}

_xvfb_pid=""
_wineserver_pid=""

# A display number of its own, chosen at random: suites start and end side by side, and a number
# just given up by one suite's server is not handed to the next.
_start_xvfb() {
  [ -n "${DISPLAY:-}" ] && return 0
  local fifo attempt candidate number
  fifo=$(mktemp -u)
  mkfifo "$fifo"
  for attempt in 1 2 3 4 5 6 7 8; do
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
    kill "$_xvfb_pid" 2>/dev/null
    wait "$_xvfb_pid" 2>/dev/null
    _xvfb_pid=""
  done
  rm -f "$fifo"
  echo "harness: Xvfb did not start" >&2
  return 1
}

_template_prefix() {
  local template="$STAYHOLD_BUILD/wine-template"
  (
    flock 9
    if [ ! -f "$template/.ready-2" ]; then
      rm -rf "$template"
      mkdir -p "$template"
      WINEPREFIX="$template" timeout -k 5 120 "$WINE64" wineboot -i >/dev/null 2>&1 || exit 1
      WINEPREFIX="$template" timeout -k 5 60 wineserver -w
      # Wine links Desktop, Documents and the like to the Linux home; tests must write inside
      # the prefix only, so the links become folders of their own.
      find "$template/drive_c/users" -mindepth 2 -maxdepth 2 -type l | while read -r link; do
        rm -f "$link" && mkdir -p "$link"
      done
      touch "$template/.ready-2"
    fi
  ) 9>"$STAYHOLD_BUILD/wine-template.lock" || {
    echo "harness: the template prefix could not be made" >&2
    return 1
  }
  echo "$template"
}

harness_start() {
  SUITE="$1"
  SUITE_DIR="$STAYHOLD_BUILD/wine-runs/$SUITE"
  ARTIFACTS="$STAYHOLD_BUILD/test-artifacts/$SUITE"
  rm -rf "$SUITE_DIR" "$ARTIFACTS"
  mkdir -p "$SUITE_DIR" "$ARTIFACTS"
  trap _harness_stop EXIT
  _start_xvfb || exit 1
  local template
  template=$(_template_prefix) || exit 1
  cp -a "$template" "$SUITE_DIR/prefix"
  export WINEPREFIX="$SUITE_DIR/prefix"
  wineserver -f -p >/dev/null 2>&1 &
  _wineserver_pid=$!
  WIN_USER=$(ls "$WINEPREFIX/drive_c/users" | grep -v -x -e Public -e Default | head -n 1)
  # Start the desktop now and prove that windows can be made, so that no test meets a display
  # that is not ready.
  wait_for 30 wintool window probe || {
    echo "harness: Wine cannot create a window on $DISPLAY" >&2
    exit 1
  }
}

_harness_stop() {
  local status=$?
  if [ "$status" -ne 0 ]; then
    _keep_artifacts
    echo "harness: suite $SUITE failed; artifacts in $ARTIFACTS" >&2
  fi
  if [ -n "$_wineserver_pid" ]; then
    timeout -k 2 15 wineserver -k >/dev/null 2>&1
    kill "$_wineserver_pid" 2>/dev/null
    wait "$_wineserver_pid" 2>/dev/null
  fi
  if [ -n "$_xvfb_pid" ]; then
    kill "$_xvfb_pid" 2>/dev/null
    wait "$_xvfb_pid" 2>/dev/null
  fi
  [ "$status" -eq 0 ] && rm -rf "$SUITE_DIR"
  exit "$status"
}

_keep_artifacts() {
  local data
  data=$(data_dir 2>/dev/null) || return 0
  [ -f "$data/logs/stayhold.log" ] && cp "$data/logs/stayhold.log" "$ARTIFACTS/"
  [ -f "$data/config.ini" ] && cp "$data/config.ini" "$ARTIFACTS/"
  shot failure >/dev/null 2>&1 || true
}

wine_exe() {
  timeout -k 5 "$WINE_TIMEOUT" "$WINE64" "$@"
}

wintool() {
  local out status
  out=$(wine_exe "$STAYHOLD_BUILD/tests/wintool.exe" "$@")
  status=$?
  [ -n "$out" ] && printf '%s\n' "${out//$'\r'/}"
  return "$status"
}

# Prints the full exit code, or "timeout"; a failure to start fails the suite.
win_exit_code() {
  local limit="$1"
  shift
  local out
  out=$(wintool run "$limit" "$@")
  case "$out" in
    exit=*) echo "${out#exit=}" ;;
    timeout) echo timeout ;;
    "") echo "no-answer" ;;  # the helper itself was ended, as at a suite's clean-up
    *) fail "could not start $* ($out)" ;;
  esac
}

window_up() {
  wintool find StayholdHiddenWindow >/dev/null
}

data_dir() {
  echo "$WINEPREFIX/drive_c/users/$WIN_USER/AppData/Local/Stayhold"
}

log_file() {
  echo "$(data_dir)/logs/stayhold.log"
}

# Windows path of a Linux path (Wine maps / to Z:).
win_path() {
  echo "Z:$1" | tr '/' '\\'
}

shot() {
  import -window root "$ARTIFACTS/$1.png" && echo "$ARTIFACTS/$1.png"
}

fail() {
  echo "FAIL: $*" >&2
  exit 1
}

# Runs until the condition command succeeds or the seconds run out.
wait_for() {
  local seconds="$1"
  shift
  local end=$((SECONDS + seconds))
  until "$@"; do
    [ "$SECONDS" -ge "$end" ] && return 1
    sleep 0.1
  done
}
