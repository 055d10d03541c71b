#!/usr/bin/env bash
# The guard's face in the notification area: the icon appears, a right click opens the menu and
# its items carry out their commands, a left click asks for the settings, and the Startup item
# really creates the shortcut.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../wine/harness.sh"
harness_start tray

APP="$STAYHOLD_BUILD/Stayhold.exe"
LOG=$(log_file)
STARTUP_DIR="$WINEPREFIX/drive_c/users/$WIN_USER/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"
startup_link() { find "$STARTUP_DIR" -maxdepth 2 -ipath '*/startup/stayhold.lnk' -size +0 | grep -q .; }
# Wine's tray is an X window at the top left; our icon is its first.
ICON_X=12
ICON_Y=31

query() { wintool send StayholdHiddenWindow 0x0011 0 0 | sed -n 's/^result=//p'; }
tray_up() { xdotool search --name 'Wine System Tray' >/dev/null 2>&1; }

# Opens the menu with a right click and clicks the item `rows_down` pixels below the cursor.
choose_menu_item() {
  xdotool mousemove $ICON_X $ICON_Y click 3
  sleep 0.8
  shot "menu_$2" >/dev/null
  xdotool mousemove $((ICON_X + 60)) $((ICON_Y + $1)) click 1
}

win_exit_code 60000 "$APP" --exit-after-ms=50000 >"$SUITE_DIR/guard.code" &
guard=$!
wait_for 15 window_up || fail "the hidden window did not appear"
wait_for 10 tray_up || fail "no tray icon area appeared"
sleep 1
[ "$(query)" = 0 ] || fail "the guard does not block after its start"

echo "--- the menu's first switch turns protection off"
choose_menu_item 36 block
wait_for 5 grep -q '  stayhold disabled$' "$LOG" || fail "the menu item did not toggle the guard"
[ "$(query)" = 1 ] || fail "a query is still refused with the guard off"

echo "--- Escape closes the menu without a command"
lines=$(grep -c '' "$LOG")
xdotool mousemove $ICON_X $ICON_Y click 3
sleep 0.8
xdotool key Escape
sleep 0.5
[ "$(grep -c '' "$LOG")" = "$lines" ] || fail "Escape on the menu ran a command"

echo "--- Start with Windows creates the Startup shortcut"
startup_link && fail "a Startup shortcut exists before the toggle"
choose_menu_item 76 startup
wait_for 5 grep -q '  startup toggle ok -> enabled$' "$LOG" || fail "no 'startup toggle ok -> enabled'"
startup_link || fail "the Startup shortcut was not written"
choose_menu_item 76 startup_off
wait_for 5 grep -q '  startup toggle ok -> disabled$' "$LOG" || fail "no 'startup toggle ok -> disabled'"
startup_link && fail "the Startup shortcut was not removed"

echo "--- a left click asks for the settings"
xdotool mousemove $ICON_X $ICON_Y click 1
wait_for 10 xdotool search --name '^Stayhold Settings$' >/dev/null || fail "no settings notice"
shot settings_notice >/dev/null
xdotool key Return

wintool post StayholdHiddenWindow 0x0010 0 0 >/dev/null
wait "$guard"
[ "$(cat "$SUITE_DIR/guard.code")" = 0 ] || fail "guard exit code $(cat "$SUITE_DIR/guard.code")"
echo "tray scenario: all checks passed"
