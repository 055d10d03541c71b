#include "guard/log.h"

#include <gtest/gtest.h>

namespace {

LocalTime Time(uint16_t day, uint16_t month, uint16_t year, uint16_t hour, uint16_t minute,
               uint16_t second) {
  LocalTime time;
  time.day = day;
  time.month = month;
  time.year = year;
  time.hour = hour;
  time.minute = minute;
  time.second = second;
  return time;
}

TEST(FormatLogLine, ExactBytes) {
  const struct {
    const char* what;
    LocalTime time;
    const wchar_t* message;
    const char* bytes;
  } cases[] = {
      {"no leading zeros on day, month, hour", Time(7, 3, 2026, 9, 5, 2), L"app startup",
       "7.3.2026  9:05:02  app startup\n"},
      {"two-digit fields", Time(31, 12, 2026, 23, 59, 59), L"app shutdown",
       "31.12.2026  23:59:59  app shutdown\n"},
      {"midnight", Time(1, 1, 2027, 0, 0, 0), L"x", "1.1.2027  0:00:00  x\n"},
      {"year padded to four digits", Time(2, 2, 999, 1, 2, 3), L"y", "2.2.0999  1:02:03  y\n"},
      {"empty message keeps both blanks", Time(7, 3, 2026, 9, 5, 2), L"", "7.3.2026  9:05:02  \n"},
      {"UTF-8 without BOM", Time(7, 3, 2026, 9, 5, 2), L"profil \u010Ctvrtek \u65E5",
       "7.3.2026  9:05:02  profil \xC4\x8Ctvrtek \xE6\x97\xA5\n"},
      {"a line feed in the message is not escaped", Time(7, 3, 2026, 9, 5, 2), L"a\nb",
       "7.3.2026  9:05:02  a\nb\n"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(FormatLogLine(c.time, c.message), c.bytes) << c.what;
}

}  // namespace
