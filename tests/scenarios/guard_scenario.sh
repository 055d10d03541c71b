#!/usr/bin/env bash
# The guard's one job, end to end: it creates its configuration, refuses a planned restart while
# protection applies, lets sign-outs and critical shutdowns pass, follows the tray switch, its
# restart windows and the clock, and migrates an older configuration.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../wine/harness.sh"
harness_start guard

APP="$STAYHOLD_BUILD/Stayhold.exe"
LOG=$(log_file)
CONFIG="$(data_dir)/config.ini"
QUERY=0x0011
LOGOFF=0x80000000
CRITICAL=0x40000000
CLOSEAPP=0x00000001

config_text() { iconv -f UTF-16 -t UTF-8 "$CONFIG" | tr -d '\r'; }
config_has() { config_text | grep -qxF -- "$1"; }
blocked_lines() { [ -f "$LOG" ] && grep -c '  planned shutdown/restart blocked$' "$LOG" || echo 0; }

# Writes config.ini as the program keeps it: UTF-16LE with a byte order mark, CRLF lines.
write_config() {
  mkdir -p "$(data_dir)"
  { printf '\xff\xfe'; printf '%s\r\n' "$@" | iconv -f UTF-8 -t UTF-16LE; } >"$CONFIG"
}

query() { wintool send StayholdHiddenWindow $QUERY 0 "$1" | sed -n 's/^result=//p'; }

expect_query() {
  local flags="$1" expected="$2" what="$3" got
  got=$(query "$flags")
  [ "$got" = "$expected" ] || fail "$what: WM_QUERYENDSESSION($flags) answered '$got', expected $expected"
}

start_guard() {
  win_exit_code 60000 "$APP" --exit-after-ms=45000 >"$SUITE_DIR/guard.code" &
  guard_pid=$!
  wait_for 15 window_up || fail "the hidden window did not appear"
}

# Waits past the 500 ms start timer, when the first refresh has run.
protection_started() { sleep 1; }

stop_guard() {
  wintool post StayholdHiddenWindow 0x0010 0 0 >/dev/null || fail "could not post WM_CLOSE"
  wait "$guard_pid"
  local code
  code=$(cat "$SUITE_DIR/guard.code")
  [ "$code" = 0 ] || fail "the guard ended with $code after WM_CLOSE, expected 0"
}

echo "--- a first start creates config.ini in UTF-16"
[ -e "$CONFIG" ] && fail "config.ini exists before the first start"
win_exit_code 60000 "$APP" --exit-after-ms=45000 >"$SUITE_DIR/guard.code" &
guard_pid=$!
first=$(wintool send-first StayholdHiddenWindow $QUERY 0 0 15000)
grep -qx 'result=1' <<<"$first" || fail "a query in the first moments was refused: $first"
after=$(sed -n 's/^after_found_ms=//p' <<<"$first")
[ "${after:-999}" -lt 400 ] || fail "the early query was answered only ${after} ms after the window appeared"
[ "$(head -c 2 "$CONFIG" | od -An -tx1 | tr -d ' ')" = fffe ] || fail "config.ini is not UTF-16LE with BOM"
for line in '[general]' 'guard_enabled=1' 'language=auto' 'skin_id=win11-auto' \
  'ui_performance_profile=balanced' '[profiles]' 'count=1' 'active_index=0' '[profile0]' \
  'name=' 'windows_count=0'; do
  config_has "$line" || fail "config.ini lacks '$line': $(config_text)"
done

echo "--- after the first refresh a planned restart is refused"
protection_started
expect_query 0 0 "plain shutdown"
[ "$(blocked_lines)" = 1 ] || fail "no 'planned shutdown/restart blocked' line"
expect_query $LOGOFF 1 "sign-out"
expect_query $CRITICAL 1 "critical shutdown"
[ "$(blocked_lines)" = 1 ] || fail "a passing query wrote a block line"
expect_query $CLOSEAPP 0 "close-app"
[ "$(blocked_lines)" = 2 ] || fail "the refused close-app query was not logged"

echo "--- Wine's own end-of-session request is refused and the guard survives"
wine_exe wineboot --end-session >/dev/null 2>&1
status=$?
[ "$status" = 1 ] || fail "wineboot --end-session exited $status, expected 1 (refused)"
window_up || fail "the guard did not survive the refused end of session"
[ "$(blocked_lines)" = 3 ] || fail "the end-of-session refusal was not logged"

echo "--- the tray switch turns protection off and on"
wintool post StayholdHiddenWindow 0x0111 1001 0 >/dev/null
wait_for 5 grep -q '  stayhold disabled$' "$LOG" || fail "no 'stayhold disabled' line"
expect_query 0 1 "guard switched off"
config_has 'guard_enabled=0' || fail "guard_enabled=0 not saved"
wintool post StayholdHiddenWindow 0x0111 1001 0 >/dev/null
wait_for 5 grep -q '  stayhold enabled$' "$LOG" || fail "no 'stayhold enabled' line"
expect_query 0 0 "guard switched on again"
config_has 'guard_enabled=1' || fail "guard_enabled=1 not saved"
stop_guard
grep -q '  app shutdown$' "$LOG" || fail "no 'app shutdown' line"

echo "--- restart windows of the active profile follow the clock"
now_day=$(($(date +%u) - 1))
now_min=$((10#$(date +%H) * 60 + 10#$(date +%M)))
if [ "$now_min" -ge 1430 ]; then
  from=$((now_min - 5)) to=0  # overnight: from a little before now into tomorrow
else
  from=$((now_min > 5 ? now_min - 5 : 0)) to=$((now_min + 10))
fi
other_day=$(((now_day + 3) % 7))
covering="1,$now_day,$from,$to"
for case in "open:0:$covering" "disabled:0:0,$now_day,$from,$to" "other-day:0:1,$other_day,$from,$to" \
  "other-profile:1:$covering"; do
  IFS=: read -r name active window <<<"$case"
  write_config '[general]' 'guard_enabled=1' '[profiles]' 'count=2' "active_index=$active" \
    '[profile0]' 'name=Work' 'windows_count=1' "window0=$window" '[profile1]' 'name=Closed' \
    'windows_count=0'
  if [ "$name" = other-profile ]; then
    write_config '[general]' 'guard_enabled=1' '[profiles]' 'count=2' 'active_index=1' \
      '[profile0]' 'name=Open' 'windows_count=1' "window0=$covering" '[profile1]' 'name=Closed' \
      'windows_count=0'
  fi
  start_guard
  protection_started
  if [ "$name" = open ]; then
    expect_query 0 1 "a window covering now ($window)"
  else
    expect_query 0 0 "$name ($window)"
  fi
  stop_guard
done

echo "--- an older configuration is migrated at the first start"
write_config '[general]' 'manual_blocking_enabled=0' '[windows]' 'count=2' 'item0=1,4,780,1020' 'item1='
start_guard
protection_started
expect_query 0 1 "guard off by the legacy switch"
stop_guard
for line in 'guard_enabled=0' 'count=1' 'windows_count=1' 'window0=1,4,780,1020' 'name='; do
  config_has "$line" || fail "migrated config.ini lacks '$line': $(config_text)"
done
config_text | grep -q '^\[windows\]' && fail "the legacy [windows] section survived"
config_text | grep -q '^manual_blocking_enabled=' && fail "manual_blocking_enabled survived"

echo "--- profile names in every script survive a save and a load"
names=('Pracovní týden' '週末の設定' 'العمل' 'Night 🌙 Ωμέγα')
write_config '[general]' 'guard_enabled=1' '[profiles]' 'count=4' 'active_index=0' \
  '[profile0]' "name=${names[0]}" '[profile1]' "name=${names[1]}" '[profile2]' "name=${names[2]}" \
  '[profile3]' "name=${names[3]}"
start_guard
wintool post StayholdHiddenWindow 0x0111 1001 0 >/dev/null  # each toggle saves the whole file
wintool post StayholdHiddenWindow 0x0111 1001 0 >/dev/null
wait_for 5 grep -q '  stayhold enabled$' "$LOG" || fail "the toggles did not run"
stop_guard
for i in 0 1 2 3; do
  config_has "name=${names[$i]}" || fail "profile name '${names[$i]}' did not survive: $(config_text)"
done

echo "--- --ensure-config writes the configuration and ends"
rm -f "$CONFIG"
code=$(win_exit_code 20000 "$APP" --ensure-config)
[ "$code" = 0 ] || fail "--ensure-config exited $code"
config_has 'count=1' || fail "--ensure-config wrote no configuration"
window_up && fail "--ensure-config started the guard"

echo "guard scenario: all checks passed"
