#!/usr/bin/env bash
# Builds Stayhold.msi with wixl, then sets what wixl cannot express itself, straight in the
# tables: the conditions of the optional shortcut components, and the removal of an older
# version early in the installation (1501, just after InstallInitialize).
# Usage: build_msi.sh OUTPUT.msi APP_EXE ICON VERSION   (run from the build tree)
set -euo pipefail
out="$1" app="$2" icon="$3" version="$4"
here=$(cd "$(dirname "$0")" && pwd)
# wixl resolves sources relative to the working folder only.
rel() { realpath --relative-to="$PWD" "$1"; }
tmp="$out.tmp"
rm -f "$tmp"
wixl -a x64 -D AppExe="$(rel "$app")" -D IconFile="$(rel "$icon")" -D Version="$version" \
  -o "$tmp" "$here/stayhold.wxs"
condition() {
  msibuild "$tmp" -q "UPDATE Component SET Condition = '$2' WHERE Component = '$1'"
}
condition cmpStartupShortcut 'STARTWITHWINDOWS = "1"'
condition cmpDesktopShortcut 'DESKTOPSHORTCUT = "1"'
msibuild "$tmp" -q "UPDATE InstallExecuteSequence SET Sequence = 1501 WHERE Action = 'RemoveExistingProducts'"
mv "$tmp" "$out"
