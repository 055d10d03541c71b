#!/usr/bin/env bash
# The guard's start and end under Wine: the self-exit limit, the single-instance rule, the hidden
# window, WM_CLOSE, setup options refused by the application, and the setup's own role choice.
. "$(dirname "$0")/../wine/harness.sh"
harness_start startup

SETUP="$STAYHOLD_BUILD/StayholdSetup.exe"
# A second Stayhold.exe ARGS ends at once with exit code 0 and writes nothing.
expect_quiet_launch() {
  lines_before=$(log_lines)
  [ "$(win_exit_code 10000 "$APP" "$@")" = 0 ] || fail "Stayhold.exe $* did not exit 0"
  [ "$(log_lines)" = "$lines_before" ] || fail "Stayhold.exe $* wrote to the log"
}

# Runs EXE ARGS, presses Enter on its message box TITLE (after a screenshot) and wants exit CODE.
dismiss_notice() {
  local title="$1" shot_name="$2" code="$3" id pid
  shift 3
  win_exit_code 20000 "$@" >"$SUITE_DIR/notice.code" &
  pid=$!
  id=$(wait_for 20 xdotool search --name "^$title\$" | head -n 1)
  [ -n "$id" ] || fail "no notice titled '$title'"
  sleep 0.3
  shot "$shot_name" >/dev/null
  xdotool windowactivate --sync "$id" 2>/dev/null || xdotool windowfocus --sync "$id"
  xdotool key --window "$id" Return
  wait "$pid"
  [ "$(cat "$SUITE_DIR/notice.code")" = "$code" ] ||
    fail "$* after '$title' exited $(cat "$SUITE_DIR/notice.code"), expected $code"
}

start_guard 1500
expect_log "app startup" 10
expect_quiet_launch --exit-after-ms=1000
guard_ends
expect_log "app shutdown"
window_up && fail "the hidden window outlived the process"

first_line=$(head -n 1 "$LOG")
today=$(date +%-d.%-m.%Y)
LC_ALL=C grep -q -P "^$today  ([0-9]|1[0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]  app startup\$" \
  <<<"$first_line" || fail "log line '$first_line' does not match '$today  H:MM:SS  app startup'"

start_guard 40000
facts=$(wintool find StayholdHiddenWindow)
for fact in title=Stayhold visible=0 top_level=1 owner=0 size=1x1; do
  grep -qx "$fact" <<<"$facts" || fail "the hidden window lacks $fact: $facts"
done
(($(sed -n 's/^style=//p' <<<"$facts") & 0x80000000)) || fail "not WS_POPUP: $facts"
(($(sed -n 's/^ex_style=//p' <<<"$facts") & 0x80)) || fail "not WS_EX_TOOLWINDOW: $facts"

dismiss_notice "Already running" already_running 0 "$APP"
expect_log "launch ignored: already running"

expect_quiet_launch --settings --exit-after-ms=1000
stop_guard

dismiss_notice "Use the setup" use_the_setup 4 "$APP" --repair
window_up && fail "a refused option started the guard"

lines_before=$(log_lines)
code=$(win_exit_code 20000 "$SETUP" --exit-after-ms=1000)
[ "$code" = 0 ] || fail "StayholdSetup.exe --exit-after-ms=1000 exited $code"
for line in "app startup" "app shutdown"; do
  tail -n +$((lines_before + 1)) "$LOG" | grep -q "  $line\$" || fail "setup guard: no '$line'"
done

lines_before=$(log_lines)
dismiss_notice "Stayhold Setup" setup_dialog_placeholder 0 "$SETUP" --exit-after-ms=600001
window_up && fail "the setup entered the guard role with an invalid limit"
[ "$(log_lines)" = "$lines_before" ] || fail "the setup dialog path wrote to the log"

