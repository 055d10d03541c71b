// The wall clock as Windows gives it (SYSTEMTIME fields). Everything that depends on the time takes
// a LocalTime value; only CurrentLocalTime reads the clock.
#pragma once

#include <cstdint>

struct LocalTime {
  uint16_t year = 2026;
  uint16_t month = 1;
  uint16_t day_of_week = 1;  // 0 Sunday .. 6 Saturday, as Windows counts
  uint16_t day = 1;
  uint16_t hour = 0;
  uint16_t minute = 0;
  uint16_t second = 0;
};

// Platform seam: the local time now.
LocalTime CurrentLocalTime();
