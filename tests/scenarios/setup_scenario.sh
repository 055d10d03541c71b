#!/usr/bin/env bash
# The setup program from the command line under Wine's own msiexec: install with and without
# choices, a repair that restores a deleted file, an install while the installed guard runs, a
# failing install with its exit code, and the uninstall that keeps the user's data.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../wine/harness.sh"
harness_start setup
WINE_TIMEOUT=200

SETUP="$STAYHOLD_BUILD/StayholdSetup.exe"
LOG=$(log_file)
C="$WINEPREFIX/drive_c"
PROGRAMS="$C/users/$WIN_USER/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"
DESKTOP="$C/users/$WIN_USER/Desktop"

setup() { win_exit_code 240000 "$SETUP" "$@"; }
link_exists() { find "$1" -maxdepth 1 -iname stayhold.lnk 2>/dev/null | grep -q .; }
startup_link() { link_exists "$PROGRAMS/StartUp" || link_exists "$PROGRAMS/Startup"; }
reg_value() { wine_exe reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | awk -v n="$2" '$1 == n {print $3}'; }

echo "--- a default install"
[ "$(setup --install)" = 0 ] || fail "--install did not exit 0"
[ -f "$C/Program Files/Stayhold/Stayhold.exe" ] || fail "Stayhold.exe not installed"
for skin_file in 00-tessel-default-skins.json 01-tessel-black-gemstone-skins.json \
    02-tessel-material-gallery-skins.json stayhold-tactical-3d.json HOW_TO_CREATE_CUSTOM_SKIN.txt; do
  cmp -s "$C/Program Files/Stayhold/skins/$skin_file" "$STAYHOLD_SOURCE/skins/$skin_file" ||
    fail "skins/$skin_file not installed as shipped"
done
[ "$(find "$C/Program Files/Stayhold/assets" -maxdepth 1 -name '*.png' | wc -l)" = 24 ] ||
  fail "the 24 images are not installed"
# The setup wrote the skins it carries to its cache for its own dialogs.
CACHE="$C/users/$WIN_USER/AppData/Local/Stayhold/setup-skin-cache"
cmp -s "$CACHE/stayhold-tactical-3d.json" "$STAYHOLD_SOURCE/skins/stayhold-tactical-3d.json" ||
  fail "the setup skin cache does not hold the tactical skin"
[ "$(reg_value 'HKLM\Software\Marlowen\Stayhold' InstallLocation)" = 'C:\Program' ] ||
  fail "InstallLocation not written"
link_exists "$PROGRAMS/Marlowen" || fail "no Start menu shortcut"
menu=$(wintool read-link "$(win_path "$(find "$PROGRAMS/Marlowen" -maxdepth 1 -iname stayhold.lnk | head -n 1)")")
grep -qix 'target=C:\\Program Files\\Stayhold\\Stayhold.exe' <<<"$menu" || fail "Start menu target: $menu"
grep -qx 'arguments=--settings' <<<"$menu" || fail "Start menu arguments: $menu"
grep -qix 'folder=C:\\Program Files\\Stayhold\\\?' <<<"$menu" || fail "Start menu working folder: $menu"
startup_link || fail "no Startup shortcut"
link_exists "$DESKTOP" && fail "a desktop shortcut without --desktop"
[ "$(reg_value 'HKLM\Software\Policies\Microsoft\Windows\WindowsUpdate\AU' AUOptions)" = 0x3 ] ||
  fail "policy values not written"
grep -q '  MSI install ok$' "$LOG" || fail "no 'MSI install ok'"

echo "--- a repair restores a deleted file"
rm -f "$C/Program Files/Stayhold/Stayhold.exe"
[ "$(setup --repair)" = 0 ] || fail "--repair did not exit 0"
[ -f "$C/Program Files/Stayhold/Stayhold.exe" ] || fail "the repair did not restore Stayhold.exe"
grep -q '  MSI repair ok$' "$LOG" || fail "no 'MSI repair ok'"

echo "--- an install closes the running installed guard first"
win_exit_code 120000 'C:\Program Files\Stayhold\Stayhold.exe' --exit-after-ms=100000 >"$SUITE_DIR/guard.code" &
guard=$!
wait_for 20 wintool find StayholdHiddenWindow >/dev/null || fail "the installed guard did not start"
[ "$(setup --install --preserve-options)" = 0 ] || fail "install over a running guard failed"
wait "$guard"
[ "$(cat "$SUITE_DIR/guard.code")" = 0 ] || fail "the running guard did not end cleanly"
startup_link || fail "--preserve-options lost the Startup shortcut"

echo "--- the uninstall removes everything but the user's data"
[ "$(setup --uninstall)" = 0 ] || fail "--uninstall did not exit 0"
[ -e "$C/Program Files/Stayhold/Stayhold.exe" ] && fail "Stayhold.exe left behind"
link_exists "$PROGRAMS/Marlowen" && fail "Start menu shortcut left behind"
startup_link && fail "Startup shortcut left behind"
wine_exe reg query 'HKLM\Software\Marlowen\Stayhold' >/dev/null 2>&1 && fail "product key left behind"
[ -f "$LOG" ] || fail "the uninstall removed the user's data folder"

echo "--- choices and a folder of one's own"
[ "$(setup --install --desktop --no-startup --install-dir 'C:\X')" = 0 ] || fail "custom install failed"
[ -f "$C/X/Stayhold.exe" ] || fail "not installed into C:\\X"
link_exists "$DESKTOP" || fail "no desktop shortcut with --desktop"
startup_link && fail "a Startup shortcut with --no-startup"
[ "$(setup --uninstall)" = 0 ] || fail "uninstall of the custom folder failed"
link_exists "$DESKTOP" && fail "the desktop shortcut was left behind"
# Wine's msiexec finds a custom folder again only through the package's search of
# InstallLocation, which the uninstall deletes first; Windows keeps the folder in its own
# records. So whether C:\X\Stayhold.exe goes is not asserted here.

echo "--- a failing Windows Installer run gives exit code 4 and its diagnosis in the log"
[ "$(setup --install --install-dir 'Q:\no\such\drive')" = 4 ] || fail "a failing install did not exit 4"
grep -q '  setup MSI failure phase=install exit=' "$LOG" || fail "no 'setup MSI failure' line"
grep -q '  MSI install failed$' "$LOG" || fail "no 'MSI install failed'"

echo "--- a repair whose Windows Installer run fails ends with exit code 5"
[ "$(setup --install)" = 0 ] || fail "reinstall failed"
wine_exe reg add 'HKLM\Software\Marlowen\Stayhold' /v InstallLocation /d 'Q:\nowhere' /f >/dev/null
[ "$(setup --repair)" = 5 ] || fail "a failing repair did not exit 5"
grep -q '  MSI repair failed$' "$LOG" || fail "no 'MSI repair failed'"

echo "--- an uninstall whose package is gone ends with exit code 2"
wine_exe reg delete 'HKLM\Software\Marlowen\Stayhold' /f >/dev/null 2>&1
[ "$(setup --install)" = 0 ] || fail "install before the broken uninstall failed"
rm -f "$C/windows/Installer/"*.msi "$(data_dir)/setup-msi-cache/"*.msi
code=$(setup --uninstall)
echo "uninstall without any package source exited $code"
[ "$code" = 2 ] || fail "an uninstall that Windows Installer cannot carry out exited $code, not 2"

echo "setup scenario: all checks passed"
