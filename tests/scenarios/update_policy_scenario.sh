#!/usr/bin/env bash
# The guard logs the Windows Update policy state once at each start, read from the real registry:
# not-strict on a machine without the values, strict after the setup's writer ran.
. "$(dirname "$0")/../wine/harness.sh"
harness_start update_policy

HEAD='windows update manual-restart policy status: '
NAMES=(NoAutoUpdate AUOptions NoAutoRebootWithLoggedOnUsers AlwaysAutoRebootAtScheduledTime
  SetComplianceDeadline)

# Starts the guard once and compares its policy line with VERDICT and the five values in order.
expect_line() {
  local want="$HEAD$1" name code got
  shift
  for name in "${NAMES[@]}"; do want+=" $name=$1" && shift; done
  code=$(win_exit_code 20000 "$APP" --exit-after-ms=300)
  [ "$code" = 0 ] || fail "guard exit code $code"
  got=$(grep -F "$HEAD" "$LOG" | tail -n 1 | sed 's/^.*  windows/windows/')
  [ "$got" = "$want" ] || fail "policy line '$got', expected '$want'"
}

expect_line not-strict '<missing>' '<missing>' '<missing>' '<missing>' '<missing>'
# The status comes after "app startup" and before anything else of the run.
grep -A1 '  app startup$' "$LOG" | tail -n 1 | grep -qF "$HEAD" || fail "status line not right after app startup"

WINE_TIMEOUT=120 wine_exe "$STAYHOLD_BUILD/tests/stayhold_win32_tests.exe" \
  --gtest_filter=WindowsUpdatePolicy.ApplyWritesEveryValueAndReadsBackStrict >/dev/null ||
  fail "the policy writer test failed"
expect_line strict 0 3 1 0 0

