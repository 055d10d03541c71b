#include "guard/log.h"

#include <gtest/gtest.h>

TEST(FormatLogLine, ExactBytes) {
  const LocalTime time{2026, 3, 0, 7, 9, 5, 2};
  const std::tuple<const char*, LocalTime, const wchar_t*, const char*> cases[] = {
      {"no leading zeros on day, month, hour", time, L"app startup",
       "7.3.2026  9:05:02  app startup\n"},
      {"two-digit fields", {2026, 12, 0, 31, 23, 59, 59}, L"a", "31.12.2026  23:59:59  a\n"},
      {"midnight", {2027, 1, 0, 1, 0, 0, 0}, L"x", "1.1.2027  0:00:00  x\n"},
      {"year padded to four digits", {999, 2, 0, 2, 1, 2, 3}, L"y", "2.2.0999  1:02:03  y\n"},
      {"empty message keeps both blanks", time, L"", "7.3.2026  9:05:02  \n"},
      {"a line feed in the message is not escaped", time, L"a\nb", "7.3.2026  9:05:02  a\nb\n"}};
  for (const auto& [what, at, message, bytes] : cases)
    EXPECT_EQ(FormatLogLine(at, message), bytes) << what;
}
