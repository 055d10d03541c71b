#include "guard/log.h"

#include "base/wide_text.h"

namespace {

std::wstring TwoDigits(unsigned value) {
  std::wstring text = DecimalText(value);
  return text.size() < 2 ? L"0" + text : text;
}

std::wstring FourDigits(unsigned value) {
  std::wstring text = DecimalText(value);
  while (text.size() < 4)
    text.insert(text.begin(), L'0');
  return text;
}

}  // namespace

std::string FormatLogLine(const LocalTime& time, const std::wstring& message) {
  // "%u.%u.%04u  %u:%02u:%02u" of day, month, year, hour, minute, second.
  const std::wstring line = DecimalText(time.day) + L"." + DecimalText(time.month) + L"." +
                            FourDigits(time.year) + L"  " + DecimalText(time.hour) + L":" +
                            TwoDigits(time.minute) + L":" + TwoDigits(time.second) + L"  " +
                            message + L"\n";
  return Utf8FromWide(line);
}
