#!/usr/bin/env bash
# The guard's face in the notification area: the icon, the menu's commands (the Startup item
# really makes the shortcut), and a left click that asks for the settings.
. "$(dirname "$0")/../wine/harness.sh"
harness_start tray

STARTUP_DIR="$WINEPREFIX/drive_c/users/$WIN_USER/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"
startup_link() { find "$STARTUP_DIR" -maxdepth 2 -ipath '*/startup/stayhold.lnk' -size +0 | grep -q .; }
# Wine's tray is an X window at the top left; our icon is its first.
ICON_X=12 ICON_Y=31

# Opens the menu with a right click and clicks the item `rows_down` pixels below the cursor.
choose_menu_item() {
  xdotool mousemove $ICON_X $ICON_Y click 3
  sleep 0.8
  shot "menu_$2" >/dev/null
  xdotool mousemove $((ICON_X + 60)) $((ICON_Y + $1)) click 1
}

start_guard 50000
wait_for 10 xdotool search --name 'Wine System Tray' >/dev/null 2>&1 || fail "no tray icon area appeared"
sleep 1

choose_menu_item 36 block
expect_log "stayhold disabled" 5

lines=$(log_lines)
xdotool mousemove $ICON_X $ICON_Y click 3
sleep 0.8
xdotool key Escape
sleep 0.5
[ "$(log_lines)" = "$lines" ] || fail "Escape on the menu ran a command"

startup_link && fail "a Startup shortcut exists before the toggle"
choose_menu_item 76 startup
expect_log "startup toggle ok -> enabled" 5
startup_link || fail "the Startup shortcut was not written"
choose_menu_item 76 startup_off
expect_log "startup toggle ok -> disabled" 5
startup_link && fail "the Startup shortcut was not removed"

xdotool mousemove $ICON_X $ICON_Y click 1
wait_for 10 xdotool search --name '^Stayhold Settings$' >/dev/null || fail "no settings notice"
shot settings_notice >/dev/null
xdotool key Return

stop_guard
