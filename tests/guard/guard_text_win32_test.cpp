// Day names with the platform's real locale data.
#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "guard/guard_text.h"

TEST(DayName, ComesFromTheLocale) {
  const std::tuple<const wchar_t*, int, const wchar_t*> cases[] = {
      {L"en-US", 0, L"Monday"}, {L"en-US", 6, L"Sunday"}, {L"cs-CZ", 4, L"p\u00E1tek"}};
  for (const auto& [language, day, name] : cases) {
    AppConfig().language = language;
    EXPECT_EQ(DayName(day), name) << language << " " << day;
  }
}
