#include "update/update_check.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

TEST(CheckForUpdate, OutcomesAndTheirLogLines) {
  const wchar_t url[] = L"https://updates.invalid/update.json";
  const std::wstring http_404 = L"Update manifest returned HTTP status 404.";
  // The manifest served (null: the server answers 404), then the error and the log line.
  const std::tuple<const wchar_t*, std::wstring, std::wstring> cases[] = {
      {L"{\"version\":\"1.0.120\"}", L"", L"ok: current=1.0.112 latest=1.0.120 available"},
      {L"{\"version\":\"1.0.112\",\"sha256\":\"FF\"}", L"",
       L"ok: current=1.0.112 latest=1.0.112 current"},
      {L"", L"Update manifest does not contain a version.", L"failed: missing version"},
      {nullptr, http_404, L"failed: " + http_404}};
  for (const auto& [body, error, log] : cases) {
    ResetFakePlatform();
    Fake().http[url] =
        body ? FakeHttpResponse{true, body, L""} : FakeHttpResponse{false, L"", http_404};
    const UpdateCheckResult result = CheckForUpdateAt(url, true);
    EXPECT_TRUE(result.manual) << log;
    EXPECT_EQ(result.ok, error.empty()) << log;
    EXPECT_EQ(result.update_available, log.ends_with(L"available")) << log;
    EXPECT_EQ(result.error, error) << log;
    EXPECT_EQ(Fake().log, std::vector<std::wstring>{L"update check " + log});
  }
}

TEST(UpdateCheckState, OneCheckAtATimeAndAOneDeepSlot) {
  while (TakePendingUpdateResult()) {
  }
  ASSERT_TRUE(BeginUpdateCheck());
  EXPECT_FALSE(BeginUpdateCheck());
  UpdateCheckResult result;
  result.error = L"first";
  StorePendingUpdateResult(result, false);
  EXPECT_TRUE(UpdateCheckRunning());  // a refresh does not end a running check
  result.error = L"second";
  StorePendingUpdateResult(result, true);
  EXPECT_FALSE(UpdateCheckRunning());
  const std::optional<UpdateCheckResult> taken = TakePendingUpdateResult();
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->error, L"second");  // the later result overwrote the unread one
  EXPECT_FALSE(TakePendingUpdateResult());
  EXPECT_TRUE(BeginUpdateCheck());
  StorePendingUpdateResult(UpdateCheckResult{}, true);
  TakePendingUpdateResult();
}
