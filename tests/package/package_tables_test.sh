#!/usr/bin/env bash
# The built Windows Installer package holds what the setup relies on and Wine's installer run in
# setup_scenario.sh cannot show, read back from its tables. Usage: package_tables_test.sh Stayhold.msi
set -u
msi="$1"
failures=0
expect() {  # TABLE PATTERN WHAT
  if ! msiinfo export "$msi" "$1" 2>/dev/null | tr -d '\r' | grep -qP -- "$2"; then
    echo "FAIL: $3 (table $1 lacks /$2/)"
    failures=$((failures + 1))
  fi
}
# The fixed upgrade code, a per-machine install and the icon in Installed apps.
for property in 'UpgradeCode\t\{7C2E915B-3F4A-4D68-9B1E-5A60C3D7E214\}' 'ALLUSERS\t1' \
    'ARPPRODUCTICON\tAppIcon'; do
  expect Property "^$property\$" "property $property"
done
expect Component '^cmpStartMenuShortcut\t[^\t]*\tPublisherStartMenuDir\t[0-9]+\t\t' "Start menu shortcut always"
expect InstallExecuteSequence '^RemoveExistingProducts\t\t1501$' "early removal of an older version"
expect LaunchCondition '^NOT WIX_DOWNGRADE_DETECTED\tA newer version of Stayhold is already installed\.$' "downgrade refused"
# Wine keeps no AppUserModelID in a shortcut, so only the table shows it.
for shortcut in StartMenuShortcut StartupShortcut DesktopShortcut; do
  expect MsiShortcutProperty "^Aumid$shortcut\t$shortcut\t\{9F4C2855-9F79-4B39-A8D0-E1D42DE1D5F3\}, 5\tMarlowen\.Stayhold\.App\$" "AppUserModelID of $shortcut"
done
# Every image and skin file in the one feature, so that a repair restores it (setup_scenario.sh
# counts the installed images).
for n in $(seq 24); do
  expect FeatureComponents "^MainFeature\tcmpAsset$n$" "image component $n in the feature"
done
for n in 1 2 3 4 5; do
  expect FeatureComponents "^MainFeature\tcmpSkin$n$" "skin component $n in the feature"
done
echo "package tables: $failures failed"
[ "$failures" -eq 0 ]
