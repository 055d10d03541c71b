#!/usr/bin/env bash
# Builds Stayhold.msi with wixl, then sets what wixl cannot express itself: the conditions of
# the optional shortcut components, written straight into the Component table.
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
mv "$tmp" "$out"
