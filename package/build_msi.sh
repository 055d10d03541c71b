#!/usr/bin/env bash
# Builds Stayhold.msi with wixl, then sets what wixl cannot express itself, straight in the
# tables: the conditions of the optional shortcut components, and the removal of an older
# version early in the installation (1501, just after InstallInitialize), and the
# AppUserModelID of every shortcut (MsiShortcutProperty), so that the shortcuts and the running
# guard share one taskbar identity.
# Usage: build_msi.sh OUTPUT.msi APP_EXE ICON VERSION   (run from the build tree)
set -euo pipefail
out="$1" app="$2" icon="$3" version="$4"
here=$(cd "$(dirname "$0")" && pwd)
# wixl resolves sources relative to the working folder only.
rel() { realpath --relative-to="$PWD" "$1"; }
tmp="$out.tmp"
rm -f "$tmp"
wixl -a x64 -D AppExe="$(rel "$app")" -D IconFile="$(rel "$icon")" -D Version="$version" \
  -D AssetsDir="$(rel "$here/../assets")" \
  -D SkinsDir="$(rel "$here/../skins")" -o "$tmp" "$here/stayhold.wxs"
condition() {
  msibuild "$tmp" -q "UPDATE Component SET Condition = '$2' WHERE Component = '$1'"
}
condition cmpStartupShortcut 'STARTWITHWINDOWS = "1"'
condition cmpDesktopShortcut 'DESKTOPSHORTCUT = "1"'
msibuild "$tmp" -q "UPDATE InstallExecuteSequence SET Sequence = 1501 WHERE Action = 'RemoveExistingProducts'"
msibuild "$tmp" -q "CREATE TABLE \`MsiShortcutProperty\` (\`MsiShortcutProperty\` CHAR(72) NOT NULL, \`Shortcut_\` CHAR(72) NOT NULL, \`PropertyKey\` CHAR(0) NOT NULL, \`PropVariantValue\` CHAR(0) NOT NULL PRIMARY KEY \`MsiShortcutProperty\`)"
for shortcut in StartMenuShortcut StartupShortcut DesktopShortcut; do
  # {9F4C2855-9F79-4B39-A8D0-E1D42DE1D5F3}, 5 is PKEY_AppUserModel_ID.
  msibuild "$tmp" -q "INSERT INTO \`MsiShortcutProperty\` (\`MsiShortcutProperty\`, \`Shortcut_\`, \`PropertyKey\`, \`PropVariantValue\`) VALUES ('Aumid$shortcut', '$shortcut', '{9F4C2855-9F79-4B39-A8D0-E1D42DE1D5F3}, 5', 'Marlowen.Stayhold.App')"
done
mv "$tmp" "$out"
