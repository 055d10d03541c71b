#!/usr/bin/env bash
# The guard's start and end under Wine: the self-exit limit, the single-instance rule, the hidden
# window, WM_CLOSE, setup options refused by the application, and the setup's own role choice.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../wine/harness.sh"
harness_start startup

APP="$STAYHOLD_BUILD/Stayhold.exe"
SETUP="$STAYHOLD_BUILD/StayholdSetup.exe"
LOG=$(log_file)

log_lines() { [ -f "$LOG" ] && grep -c '' "$LOG" || echo 0; }
log_has() { [ -f "$LOG" ] && grep -q -- "  $1\$" "$LOG"; }

# Waits for a message box with this title, takes a screenshot, and presses Enter on it.
dismiss_notice() {
  local title="$1" shot_name="$2" id=""
  wait_for 20 xdotool search --name "^$title\$" >/dev/null || fail "no notice titled '$title'"
  id=$(xdotool search --name "^$title\$" | head -n 1)
  sleep 0.3
  shot "$shot_name" >/dev/null
  xdotool windowactivate --sync "$id" 2>/dev/null || xdotool windowfocus --sync "$id"
  xdotool key --window "$id" Return
}

echo "--- a guard with a self-exit limit, and a second launch while it runs"
win_exit_code 20000 "$APP" --exit-after-ms=1500 >"$SUITE_DIR/first.code" &
first=$!
wait_for 15 window_up || fail "the hidden window did not appear"
wait_for 10 log_has "app startup" || fail "no 'app startup' line"
lines_before=$(log_lines)
second=$(win_exit_code 10000 "$APP" --exit-after-ms=1000)
[ "$second" = 0 ] || fail "second instance exit code $second, expected 0"
[ "$(log_lines)" = "$lines_before" ] || fail "the second instance wrote to the log"
wait "$first"
code=$(cat "$SUITE_DIR/first.code")
[ "$code" = 0 ] || fail "self-exit ended with $code, expected 0"
log_has "app startup" || fail "no 'app startup' line"
log_has "app shutdown" || fail "no 'app shutdown' line"
window_up && fail "the hidden window outlived the process"

echo "--- the log line format, byte for byte"
first_line=$(head -n 1 "$LOG")
today=$(date +%-d.%-m.%Y)
LC_ALL=C grep -q -P "^$today  ([0-9]|1[0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]  app startup\$" \
  <<<"$first_line" || fail "log line '$first_line' does not match '$today  H:MM:SS  app startup'"
head -c 3 "$LOG" | od -An -tx1 | grep -q 'ef bb bf' && fail "the log starts with a byte order mark"
grep -q $'\r' "$LOG" && fail "the log holds carriage returns"
[ "$(tail -c 1 "$LOG" | od -An -tx1 | tr -d ' ')" = 0a ] || fail "the log does not end in a line feed"

echo "--- the hidden window is a real, never shown top-level window"
win_exit_code 30000 "$APP" --exit-after-ms=20000 >"$SUITE_DIR/close.code" &
guard=$!
wait_for 15 window_up || fail "the hidden window did not appear"
facts=$(wintool find StayholdHiddenWindow)
grep -qx 'title=Stayhold' <<<"$facts" || fail "window title: $facts"
grep -qx 'visible=0' <<<"$facts" || fail "the hidden window is visible: $facts"
grep -qx 'top_level=1' <<<"$facts" || fail "not a top-level window: $facts"
grep -qx 'owner=0' <<<"$facts" || fail "the hidden window has an owner: $facts"
grep -qx 'size=1x1' <<<"$facts" || fail "window size: $facts"
style=$(sed -n 's/^style=//p' <<<"$facts")
ex_style=$(sed -n 's/^ex_style=//p' <<<"$facts")
(((style & 0x80000000) != 0)) || fail "not WS_POPUP: $style"
(((ex_style & 0x80) != 0)) || fail "not WS_EX_TOOLWINDOW: $ex_style"

echo "--- WM_CLOSE ends the guard cleanly"
shutdowns=$(grep -c '  app shutdown$' "$LOG")
wintool post StayholdHiddenWindow 0x0010 0 0 || fail "could not post WM_CLOSE"
wait "$guard"
code=$(cat "$SUITE_DIR/close.code")
[ "$code" = 0 ] || fail "WM_CLOSE ended the guard with $code, expected 0"
[ "$(grep -c '  app shutdown$' "$LOG")" = $((shutdowns + 1)) ] || fail "no 'app shutdown' after WM_CLOSE"

echo "--- a plain second launch says it is already running"
win_exit_code 30000 "$APP" --exit-after-ms=25000 >"$SUITE_DIR/guard.code" &
guard=$!
wait_for 15 window_up || fail "the hidden window did not appear"
win_exit_code 20000 "$APP" >"$SUITE_DIR/second.code" &
second=$!
dismiss_notice "Already running" already_running
wait "$second"
[ "$(cat "$SUITE_DIR/second.code")" = 0 ] || fail "second instance exit code $(cat "$SUITE_DIR/second.code")"
log_has "launch ignored: already running" || fail "no 'launch ignored: already running' line"

echo "--- a second launch with --settings and a self-exit limit does nothing at all"
lines_before=$(log_lines)
code=$(win_exit_code 10000 "$APP" --settings --exit-after-ms=1000)
[ "$code" = 0 ] || fail "exit code $code"
[ "$(log_lines)" = "$lines_before" ] || fail "the limited second instance wrote to the log"
wintool post StayholdHiddenWindow 0x0010 0 0 >/dev/null
wait "$guard"

echo "--- the application refuses setup options with exit code 4"
for option in --install --repair --uninstall; do
  win_exit_code 20000 "$APP" "$option" >"$SUITE_DIR/refuse.code" &
  refuse=$!
  dismiss_notice "Use the setup" "use_the_setup${option}"
  wait "$refuse"
  code=$(cat "$SUITE_DIR/refuse.code")
  [ "$code" = 4 ] || fail "Stayhold.exe $option exited $code, expected 4"
done
window_up && fail "a refused option started the guard"

echo "--- the setup runs the guard role only with a valid self-exit limit"
lines_before=$(log_lines)
code=$(win_exit_code 20000 "$SETUP" --exit-after-ms=1000)
[ "$code" = 0 ] || fail "StayholdSetup.exe --exit-after-ms=1000 exited $code"
tail -n +$((lines_before + 1)) "$LOG" | grep -q '  app startup$' || fail "setup guard: no 'app startup'"
tail -n +$((lines_before + 1)) "$LOG" | grep -q '  app shutdown$' || fail "setup guard: no 'app shutdown'"

lines_before=$(log_lines)
win_exit_code 20000 "$SETUP" --exit-after-ms=600001 >"$SUITE_DIR/setup.code" &
setup=$!
dismiss_notice "Stayhold Setup" setup_dialog_placeholder
window_up && fail "the setup entered the guard role with an invalid limit"
wait "$setup"
[ "$(cat "$SUITE_DIR/setup.code")" = 0 ] || fail "setup dialog exit code $(cat "$SUITE_DIR/setup.code")"
[ "$(log_lines)" = "$lines_before" ] || fail "the setup dialog path wrote guard log lines"

echo "startup scenario: all checks passed"
