// Day names with the platform's real locale data.
#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "guard/guard_text.h"

namespace {

TEST(DayName, ComesFromTheLocale) {
  const struct {
    const wchar_t* language;
    int day;
    const wchar_t* name;
  } cases[] = {
      {L"en-US", 0, L"Monday"},     {L"en-US", 6, L"Sunday"},   {L"cs-CZ", 0, L"pond\u011Bl\u00ED"},
      {L"cs-CZ", 4, L"p\u00E1tek"}, {L"de-DE", 2, L"Mittwoch"},
  };
  for (const auto& c : cases) {
    AppConfig().language = c.language;
    EXPECT_EQ(DayName(c.day), c.name) << c.language << " " << c.day;
  }
}

}  // namespace
