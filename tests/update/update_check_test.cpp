#include "update/update_check.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

namespace {

const wchar_t kUrl[] = L"https://updates.invalid/update.json";

TEST(CheckForUpdate, OutcomesAndTheirLogLines) {
  const struct {
    const char* what;
    FakeHttpResponse response;
    bool ok, available;
    const wchar_t* error;
    const wchar_t* log;
  } cases[] = {
      {"newer",
       {true, L"{\"version\":\"1.0.120\"}", L""},
       true,
       true,
       L"",
       L"update check ok: current=1.0.112 latest=1.0.120 available"},
      {"equal",
       {true, L"{\"version\":\"1.0.112\",\"sha256\":\"FF\"}", L""},
       true,
       false,
       L"",
       L"update check ok: current=1.0.112 latest=1.0.112 current"},
      {"older",
       {true, L"{\"version\":\"1.0.99\"}", L""},
       true,
       false,
       L"",
       L"update check ok: current=1.0.112 latest=1.0.99 current"},
      {"empty body",
       {true, L"", L""},
       false,
       false,
       L"Update manifest does not contain a version.",
       L"update check failed: missing version"},
      {"HTTP 404",
       {false, L"", L"Update manifest returned HTTP status 404."},
       false,
       false,
       L"Update manifest returned HTTP status 404.",
       L"update check failed: Update manifest returned HTTP status 404."},
  };
  for (const auto& c : cases) {
    ResetFakePlatform();
    Fake().http[kUrl] = c.response;
    const UpdateCheckResult result = CheckForUpdateAt(kUrl, true);
    EXPECT_TRUE(result.manual) << c.what;
    EXPECT_EQ(result.ok, c.ok) << c.what;
    EXPECT_EQ(result.update_available, c.available) << c.what;
    EXPECT_EQ(result.error, c.error) << c.what;
    EXPECT_EQ(Fake().log, std::vector<std::wstring>{c.log}) << c.what;
  }
}

TEST(UpdateCheckState, OneCheckAtATimeAndAOneDeepSlot) {
  while (TakePendingUpdateResult()) {
  }
  ASSERT_TRUE(BeginUpdateCheck());
  EXPECT_FALSE(BeginUpdateCheck());
  EXPECT_TRUE(UpdateCheckRunning());
  UpdateCheckResult first;
  first.error = L"first";
  StorePendingUpdateResult(first, false);  // a refresh does not end a running check
  EXPECT_TRUE(UpdateCheckRunning());
  UpdateCheckResult second;
  second.error = L"second";
  StorePendingUpdateResult(second, true);
  EXPECT_FALSE(UpdateCheckRunning());
  const std::optional<UpdateCheckResult> taken = TakePendingUpdateResult();
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->error, L"second");  // the later result overwrote the unread one
  EXPECT_FALSE(TakePendingUpdateResult());
  EXPECT_TRUE(BeginUpdateCheck());
  StorePendingUpdateResult(UpdateCheckResult{}, true);
  TakePendingUpdateResult();
}

}  // namespace
