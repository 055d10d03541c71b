#!/usr/bin/env bash
# The built Windows Installer package holds what the setup relies on, read back from its tables.
# Usage: package_tables_test.sh Stayhold.msi
set -u
msi="$1"
failures=0
expect() {  # TABLE PATTERN WHAT
  if ! msiinfo export "$msi" "$1" 2>/dev/null | tr -d '\r' | grep -qP -- "$2"; then
    echo "FAIL: $3 (table $1 lacks /$2/)"
    failures=$((failures + 1))
  fi
}
# The fixed upgrade code, version, names, a per-machine install and the icon in Installed apps.
for property in 'UpgradeCode\t\{7C2E915B-3F4A-4D68-9B1E-5A60C3D7E214\}' 'ProductVersion\t1\.0\.112' \
    'ProductName\tStayhold' 'Manufacturer\tMarlowen' 'ALLUSERS\t1' 'ARPPRODUCTICON\tAppIcon'; do
  expect Property "^$property\$" "property $property"
done
expect Component '^cmpStartupShortcut\t.*\tSTARTWITHWINDOWS = "1"\t' "Startup shortcut condition"
expect Component '^cmpDesktopShortcut\t.*\tDESKTOPSHORTCUT = "1"\t' "desktop shortcut condition"
expect Component '^cmpStartMenuShortcut\t[^\t]*\tPublisherStartMenuDir\t[0-9]+\t\t' "Start menu shortcut always"
expect InstallExecuteSequence '^RemoveExistingProducts\t\t1501$' "early removal of an older version"
expect LaunchCondition '^NOT WIX_DOWNGRADE_DETECTED\tA newer version of Stayhold is already installed\.$' "downgrade refused"
expect Shortcut '^StartMenuShortcut\tPublisherStartMenuDir\t.*\t--settings\t' "Start menu shortcut opens the settings"
expect Shortcut '^StartupShortcut\tStartupFolder\t' "Startup shortcut"
for shortcut in StartMenuShortcut StartupShortcut DesktopShortcut; do
  expect MsiShortcutProperty "^Aumid$shortcut\t$shortcut\t\{9F4C2855-9F79-4B39-A8D0-E1D42DE1D5F3\}, 5\tMarlowen\.Stayhold\.App\$" "AppUserModelID of $shortcut"
done
expect Registry 'InstallLocation\t\[INSTALLFOLDER\]' "install folder recorded"
expect Directory '^INSTALLFOLDER\tProgramFiles64Folder\tStayhold$' "default folder"
expect Media 'cab1\.cab' "one embedded cabinet"
expect Directory '^AssetsDir\tINSTALLFOLDER\tassets$' "assets folder"
n=0
for base in check_updates update_available chrome_close chrome_maximize chrome_minimize chrome_restore; do
  for state in "" _hot _pressed _disabled; do
    n=$((n + 1))
    expect Component "^cmpAsset$n\t\{[0-9A-F-]{36}\}\tAssetsDir\t" "image component $n"
    expect File "^Asset$n\tcmpAsset$n\t([^\t|]*\|)?stayhold_$base$state\.png\t[1-9]" "stayhold_$base$state.png"
    expect FeatureComponents "^MainFeature\tcmpAsset$n$" "image component $n in the feature"
  done
done
expect Directory '^SkinsDir\tINSTALLFOLDER\tskins$' "skins folder"
n=0
for skin_file in 00-tessel-default-skins.json 01-tessel-black-gemstone-skins.json \
    02-tessel-material-gallery-skins.json stayhold-tactical-3d.json HOW_TO_CREATE_CUSTOM_SKIN.txt; do
  n=$((n + 1))
  expect Component "^cmpSkin$n\t\{[0-9A-F-]{36}\}\tSkinsDir\t" "skin component $n"
  expect File "^Skin$n\tcmpSkin$n\t([^\t|]*\|)?${skin_file//./\\.}\t[1-9]" "$skin_file"
  expect FeatureComponents "^MainFeature\tcmpSkin$n$" "skin component $n in the feature"
done
echo "package tables: $failures failed"
[ "$failures" -eq 0 ]
