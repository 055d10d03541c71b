#!/usr/bin/env bash
# The guard logs the Windows Update policy state once at each start: not-strict on a machine
# without the values, strict after the setup's writer ran, and the judgement's special cases.
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../wine/harness.sh"
harness_start update_policy

APP="$STAYHOLD_BUILD/Stayhold.exe"
LOG=$(log_file)
AU='HKLM\Software\Policies\Microsoft\Windows\WindowsUpdate\AU'
PREFIX_LINE='windows update manual-restart policy status: '

# Starts the guard once and prints the policy line it logged.
status_line() {
  local code
  code=$(win_exit_code 20000 "$APP" --exit-after-ms=300)
  [ "$code" = 0 ] || fail "guard exit code $code"
  grep -F "$PREFIX_LINE" "$LOG" | tail -n 1 | sed 's/^.*  windows/windows/'
}

expect_line() {
  local got
  got=$(status_line)
  [ "$got" = "$PREFIX_LINE$1" ] || fail "policy line '$got', expected '$PREFIX_LINE$1'"
}

echo "--- a fresh machine has none of the values"
expect_line "not-strict NoAutoUpdate=<missing> AUOptions=<missing> NoAutoRebootWithLoggedOnUsers=<missing> AlwaysAutoRebootAtScheduledTime=<missing> SetComplianceDeadline=<missing>"
# The status comes after "app startup" and before anything else of the run.
grep -A1 '  app startup$' "$LOG" | tail -n 1 | grep -qF "$PREFIX_LINE" || fail "status line not right after app startup"

echo "--- after the writer ran, the next start logs strict"
WINE_TIMEOUT=120 wine_exe "$STAYHOLD_BUILD/tests/stayhold_win32_tests.exe" \
  --gtest_filter=WindowsUpdatePolicy.ApplyWritesEveryValueAndReadsBackStrict >/dev/null ||
  fail "the policy writer test failed"
expect_line "strict NoAutoUpdate=0 AUOptions=3 NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 SetComplianceDeadline=0"

echo "--- AUOptions 4 is not strict"
wine_exe reg add "$AU" /v AUOptions /t REG_DWORD /d 4 /f >/dev/null || fail "reg add failed"
expect_line "not-strict NoAutoUpdate=0 AUOptions=4 NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 SetComplianceDeadline=0"

echo "--- NoAutoUpdate as text counts as absent"
wine_exe reg add "$AU" /v AUOptions /t REG_DWORD /d 3 /f >/dev/null || fail "reg add failed"
wine_exe reg add "$AU" /v NoAutoUpdate /t REG_SZ /d 1 /f >/dev/null || fail "reg add failed"
expect_line "strict NoAutoUpdate=<missing> AUOptions=3 NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 SetComplianceDeadline=0"

echo "update policy scenario: all checks passed"
