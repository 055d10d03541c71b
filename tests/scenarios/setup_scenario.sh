#!/usr/bin/env bash
# The setup program from the command line under Wine's own msiexec: installs, repairs, failures
# with their exit codes, and the uninstall that keeps the user's data.
. "$(dirname "$0")/../wine/harness.sh"
harness_start setup
WINE_TIMEOUT=200

C="$WINEPREFIX/drive_c"
INSTALLED="$C/Program Files/Stayhold"
PROGRAMS="$C/users/$WIN_USER/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"
DESKTOP="$C/users/$WIN_USER/Desktop"
KEY='HKLM\Software\Marlowen\Stayhold'

setup_exits() {
  local want="$1" got
  shift
  got=$(win_exit_code 240000 "$STAYHOLD_BUILD/StayholdSetup.exe" "$@")
  [ "$got" = "$want" ] || fail "StayholdSetup.exe $* exited $got, expected $want"
}
link_exists() { find "$1" -maxdepth 1 -iname stayhold.lnk 2>/dev/null | grep -q .; }
startup_link() { link_exists "$PROGRAMS/StartUp" || link_exists "$PROGRAMS/Startup"; }
reg_value() { wine_exe reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | awk -v n="$2" '$1 == n {print $3}'; }

setup_exits 0 --install
[ -f "$INSTALLED/Stayhold.exe" ] || fail "Stayhold.exe not installed"
for shipped in "$STAYHOLD_SOURCE"/skins/*; do
  cmp -s "$INSTALLED/skins/${shipped##*/}" "$shipped" || fail "skins/${shipped##*/} not installed as shipped"
done
[ "$(find "$INSTALLED/assets" -maxdepth 1 -name '*.png' | wc -l)" = 24 ] || fail "the 24 images are not installed"
# The setup wrote the skins it carries to its cache for its own dialogs.
cmp -s "$(data_dir)/setup-skin-cache/stayhold-tactical-3d.json" "$STAYHOLD_SOURCE/skins/stayhold-tactical-3d.json" ||
  fail "the setup skin cache does not hold the tactical skin"
[ "$(reg_value "$KEY" InstallLocation)" = 'C:\Program' ] || fail "InstallLocation not written"
menu=$(wintool read-link "$(win_path "$(find "$PROGRAMS/Marlowen" -maxdepth 1 -iname stayhold.lnk | head -n 1)")")
grep -qix 'target=C:\\Program Files\\Stayhold\\Stayhold.exe' <<<"$menu" || fail "Start menu target: $menu"
grep -qx 'arguments=--settings' <<<"$menu" || fail "Start menu arguments: $menu"
grep -qix 'folder=C:\\Program Files\\Stayhold\\\?' <<<"$menu" || fail "Start menu working folder: $menu"
startup_link || fail "no Startup shortcut"
link_exists "$DESKTOP" && fail "a desktop shortcut without --desktop"
[ "$(reg_value 'HKLM\Software\Policies\Microsoft\Windows\WindowsUpdate\AU' AUOptions)" = 0x3 ] ||
  fail "policy values not written"
expect_log "MSI install ok"

rm -f "$INSTALLED/Stayhold.exe"
setup_exits 0 --repair
[ -f "$INSTALLED/Stayhold.exe" ] || fail "the repair did not restore Stayhold.exe"
expect_log "MSI repair ok"

APP='C:\Program Files\Stayhold\Stayhold.exe' start_guard 100000
setup_exits 0 --install --preserve-options
guard_ends
startup_link || fail "--preserve-options lost the Startup shortcut"

setup_exits 0 --uninstall
[ -e "$INSTALLED/Stayhold.exe" ] && fail "Stayhold.exe left behind"
link_exists "$PROGRAMS/Marlowen" && fail "Start menu shortcut left behind"
startup_link && fail "Startup shortcut left behind"
wine_exe reg query "$KEY" >/dev/null 2>&1 && fail "product key left behind"
[ -f "$LOG" ] || fail "the uninstall removed the user's data folder"

setup_exits 0 --install --desktop --no-startup --install-dir 'C:\X'
[ -f "$C/X/Stayhold.exe" ] || fail "not installed into C:\\X"
link_exists "$DESKTOP" || fail "no desktop shortcut with --desktop"
startup_link && fail "a Startup shortcut with --no-startup"
setup_exits 0 --uninstall
link_exists "$DESKTOP" && fail "the desktop shortcut was left behind"
# Wine's msiexec loses a custom folder at the uninstall (Windows keeps it): C:\X is not checked.

setup_exits 4 --install --install-dir 'Q:\no\such\drive'
grep -q '  setup MSI failure phase=install exit=' "$LOG" || fail "no 'setup MSI failure' line"
expect_log "MSI install failed"

setup_exits 0 --install
# The repair takes its folder from InstallLocation. An edit that did not take once let the repair
# pass, so the edit is made until it reads back.
points_nowhere() {
  wine_exe reg add "$KEY" /v InstallLocation /d 'Q:\nowhere' /f >/dev/null 2>&1
  [ "$(reg_value "$KEY" InstallLocation)" = 'Q:\nowhere' ]
}
wait_for 30 points_nowhere || fail "InstallLocation could not be pointed at a missing drive"
setup_exits 5 --repair
expect_log "MSI repair failed"

wine_exe reg delete "$KEY" /f >/dev/null 2>&1
setup_exits 0 --install
rm -f "$C/windows/Installer/"*.msi "$(data_dir)/setup-msi-cache/"*.msi
setup_exits 2 --uninstall

