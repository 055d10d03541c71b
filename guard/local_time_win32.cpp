#include <windows.h>

#include "guard/local_time.h"

LocalTime CurrentLocalTime() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  LocalTime time;
  time.year = now.wYear;
  time.month = now.wMonth;
  time.day_of_week = now.wDayOfWeek;
  time.day = now.wDay;
  time.hour = now.wHour;
  time.minute = now.wMinute;
  time.second = now.wSecond;
  return time;
}
