#!/usr/bin/env bash
# The guard's one job, end to end: it creates its configuration, refuses a planned restart while
# protection applies, follows the tray switch, the clock and an older configuration.
. "$(dirname "$0")/../wine/harness.sh"
harness_start guard

CONFIG="$(data_dir)/config.ini"

config_text() { iconv -f UTF-16 -t UTF-8 "$CONFIG" | tr -d '\r'; }
config_has() { config_text | grep -qxF -- "$1"; }
expect_config() {
  for line in "$@"; do config_has "$line" || fail "config.ini lacks '$line': $(config_text)"; done
}
expect_blocked() { [ "$(grep -c '  planned shutdown/restart blocked$' "$LOG")" = "$1" ] || fail "$2"; }
toggle() { wintool post StayholdHiddenWindow 0x0111 1001 0 >/dev/null; }

# Writes config.ini as the program keeps it: UTF-16LE with a byte order mark, CRLF lines.
write_config() {
  mkdir -p "$(data_dir)"
  { printf '\xff\xfe'; printf '%s\r\n' "$@" | iconv -f UTF-8 -t UTF-16LE; } >"$CONFIG"
}

# A guard whose first refresh has run (past its 500 ms start timer).
start_protecting() { start_guard 45000 && sleep 1; }

[ -e "$CONFIG" ] && fail "config.ini exists before the first start"
win_exit_code 60000 "$APP" --exit-after-ms=45000 >"$SUITE_DIR/guard.code" &
guard_pid=$!
first=$(wintool send StayholdHiddenWindow 0x0011 0 0 15000)
grep -qx 'result=1' <<<"$first" || fail "a query in the first moments was refused: $first"
after=$(sed -n 's/^after_found_ms=//p' <<<"$first")
[ "${after:-999}" -lt 400 ] || fail "the early query was answered only ${after} ms after the window appeared"
[ "$(head -c 2 "$CONFIG" | od -An -tx1 | tr -d ' ')" = fffe ] || fail "config.ini is not UTF-16LE with BOM"
expect_config '[general]' 'guard_enabled=1' '[profiles]' 'count=1' 'active_index=0' '[profile0]' \
  'windows_count=0'

sleep 1
# Which flags pass, the native table proves; here each refusal, and only a refusal, is logged.
expect_query 0 0 "plain shutdown"
expect_query 0x80000000 1 "sign-out"
expect_query 0x00000001 0 "close-app"
expect_blocked 2 "not one 'planned shutdown/restart blocked' line per refusal"

status=$(wine_exe wineboot --end-session >/dev/null 2>&1; echo $?)
[ "$status" = 1 ] || fail "wineboot --end-session exited $status, expected 1 (refused)"
window_up || fail "the guard did not survive the refused end of session"
expect_blocked 3 "the end-of-session refusal was not logged"

stop_guard
expect_log "app shutdown"

now_day=$(($(date +%u) - 1))
now_min=$((10#$(date +%H) * 60 + 10#$(date +%M)))
if [ "$now_min" -ge 1430 ]; then
  from=$((now_min - 5)) to=0  # overnight: from a little before now into tomorrow
else
  from=$((now_min > 5 ? now_min - 5 : 0)) to=$((now_min + 10))
fi
# The real clock and weekday against a window of today and one of another day; which profile and
# window flags count, the native tests prove.
for case in "open:1,$now_day,$from,$to:1" "other-day:1,$(((now_day + 3) % 7)),$from,$to:0"; do
  IFS=: read -r name window answer <<<"$case"
  write_config '[general]' 'guard_enabled=1' '[profiles]' 'count=1' 'active_index=0' \
    '[profile0]' 'name=Work' 'windows_count=1' "window0=$window"
  start_protecting
  expect_query 0 "$answer" "$name ($window)"
  stop_guard
done

write_config '[general]' 'manual_blocking_enabled=0' '[windows]' 'count=2' 'item0=1,4,780,1020' 'item1='
start_protecting
expect_query 0 1 "guard off by the legacy switch"
stop_guard
expect_config 'guard_enabled=0' 'count=1' 'windows_count=1' 'window0=1,4,780,1020' 'name='
config_text | grep -E '^(\[windows\]|manual_blocking_enabled=)' && fail "a legacy entry survived"

names=('Pracovní týden' '週末の設定' 'العمل' 'Night 🌙 Ωμέγα')
write_config '[general]' 'guard_enabled=1' '[profiles]' 'count=4' 'active_index=0' \
  '[profile0]' "name=${names[0]}" '[profile1]' "name=${names[1]}" '[profile2]' "name=${names[2]}" \
  '[profile3]' "name=${names[3]}"
start_protecting
for state in "disabled 1 0" "enabled 0 1"; do
  read -r word answer saved <<<"$state"
  toggle
  expect_log "stayhold $word" 5
  expect_query 0 "$answer" "guard $word by the switch"
  config_has "guard_enabled=$saved" || fail "guard_enabled=$saved not saved"
done
stop_guard
expect_config "${names[@]/#/name=}"

rm -f "$CONFIG"
code=$(win_exit_code 20000 "$APP" --ensure-config)
[ "$code" = 0 ] || fail "--ensure-config exited $code"
config_has 'count=1' || fail "--ensure-config wrote no configuration"
! window_up || fail "--ensure-config started the guard"

