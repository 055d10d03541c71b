// The self-update's platform half against a loopback server (tests/wine/update_server.py,
// started by tests/scenarios/update_scenario.sh): real WinHTTP, real CryptoAPI, a real launch of
// a stand-in setup. The addresses come from the environment.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "update/http_get_win32.h"
#include "update/update_check.h"
#include "update/update_commands_win32.h"
#include "update/update_fetch_win32.h"
#include "update/update_install.h"

namespace {

std::wstring Env(const wchar_t* name) {
  wchar_t value[512] = {};
  return GetEnvironmentVariableW(name, value, 512) ? std::wstring(value) : std::wstring();
}

std::wstring Http(const wchar_t* path) {
  return Env(L"STAYHOLD_TEST_HTTP") + path;
}

TEST(FetchUpdateManifest, OutcomesOverRealHttp) {
  ASSERT_FALSE(Env(L"STAYHOLD_TEST_HTTP").empty()) << "run through update_scenario.sh";
  const std::tuple<std::wstring, bool, const wchar_t*, const wchar_t*> cases[] = {
      {Http(L"/newer.json"), true, L"1.0.999", L""},
      {Env(L"STAYHOLD_TEST_HTTPS") + L"/newer.json", true, L"1.0.999", L""},  // trusted loopback
      {Http(L"/invalid.json"), false, L"", L"Update manifest is not valid UTF-8."},
      {Http(L"/status/404"), false, L"", L"Update manifest returned HTTP status 404."},
      {L"http://127.0.0.1:" + Env(L"STAYHOLD_TEST_CLOSED_PORT") + L"/x.json", false, L"",
       L"Update manifest request failed."},
      {L"no url at all", false, L"", L"WinHTTP cannot parse update URL."}};
  for (const auto& [url, ok, version, error] : cases) {
    SCOPED_TRACE(url);
    const UpdateCheckResult result = CheckForUpdateAt(url, true);
    EXPECT_EQ(result.ok, ok);
    EXPECT_EQ(result.update_available, ok);
    EXPECT_EQ(result.manifest.version, version);
    EXPECT_EQ(result.error, error);
  }
  const UpdateCheckResult versions = CheckForUpdateAt(Http(L"/versions.json"), false);
  EXPECT_EQ(versions.manifest.changes_cs, L"\u010Cesk\u00E1 pozn\u00E1mka");  // UTF-8 decoded
}

TEST(HttpGet, AStalledServerFailsTheRequest) {
  // Windows ends the wait at the injected receive limit; Wine 8 waits until the server closes
  // after 4 s. Either way the request fails, well before the production limit.
  std::wstring error;
  const HttpGetTexts texts = {L"parse", L"request failed", L"status ", L"query", L"read"};
  HttpGetLimits limits;
  limits.receive_ms = 1500;
  const DWORD start = GetTickCount();
  EXPECT_FALSE(HttpGet(
      Http(L"/stall"), texts, limits, [](uint64_t, std::wstring&) { return true; },
      [](const char*, DWORD, std::wstring&) { return true; }, error));
  EXPECT_EQ(error, L"request failed");
  EXPECT_LT(GetTickCount() - start, 10000u);
}

// The command line the stand-in setup records, once it has written it.
std::string SetupRecord() {
  std::string text;
  for (int i = 0; i < 100 && text.empty(); ++i, Sleep(50)) {
    std::ifstream file(std::filesystem::temp_directory_path() / L"stayhold_fake_setup_args.txt");
    text.assign(std::istreambuf_iterator<char>(file), {});
  }
  return text;
}

// The real services, with every progress report recorded.
class RecordingServices final : public UpdateInstallServices {
 public:
  explicit RecordingServices(const wchar_t* manifest) : real_(nullptr, Http(manifest)) {
    UpdateManifest cached;
    cached.version = L"1.0.999";
    RunStayholdAutoUpdate(*this, state, cached);
  }
  std::shared_ptr<UpdateInstallState> state = std::make_shared<UpdateInstallState>();
  std::vector<int> progress;

  UpdateCheckResult RefreshManifest() override { return real_.RefreshManifest(); }
  void PublishCheckResult(const UpdateCheckResult& r) override { real_.PublishCheckResult(r); }
  std::wstring TempFolder() override { return real_.TempFolder(); }
  bool DownloadSetup(const std::wstring& url, const std::wstring& target,
                     const std::function<void(int)>& report, std::wstring& error) override {
    return real_.DownloadSetup(url, target, report, error);
  }
  bool HashFileSha256(const std::wstring& path, std::wstring& hex, std::wstring& error) override {
    return real_.HashFileSha256(path, hex, error);
  }
  bool LaunchSilentSetup(const std::wstring& path, std::wstring& error) override {
    std::filesystem::remove(std::filesystem::temp_directory_path() /
                            L"stayhold_fake_setup_args.txt");
    const bool ok = real_.LaunchSilentSetup(path, error);
    // Let the stand-in finish, so that the next download may overwrite its file.
    if (ok) SetupRecord();
    Sleep(200);
    return ok;
  }
  void NotifyProgress() override {
    std::lock_guard<std::mutex> hold(state->mutex);
    progress.push_back(state->progress);
  }

 private:
  SystemUpdateInstallServices real_;
};

TEST(RunStayholdAutoUpdate, DownloadsVerifiesAndStartsTheSetupSilently) {
  RecordingServices services(L"/install.json");  // lower-case sha256 in the manifest
  EXPECT_TRUE(services.state->succeeded) << services.state->detail;
  EXPECT_TRUE(services.state->close_app);
  // The real download reports steps between 8 and 82; the rest is the worker's, tested natively.
  const std::vector<int>& progress = services.progress;
  ASSERT_GE(progress.size(), 7u);
  EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end()));
  EXPECT_GE(progress[2], 10);
  EXPECT_LE(progress[progress.size() - 5], 80);
  const std::string record = SetupRecord();
  EXPECT_TRUE(
      record.ends_with("--install --quiet --preserve-options --restart-app --settings "
                       "--install-dir \"C:\\Program Files\\Stayhold\""))
      << record;
}

// The real download's own endings; the other endings are the worker's, tested natively.
TEST(RunStayholdAutoUpdate, AMissingSetupFailsAnUnknownLengthShowsNoMovement) {
  RecordingServices missing(L"/install_missing_setup.json");
  EXPECT_EQ(missing.state->detail, L"Setup download returned HTTP status 404.");
  EXPECT_FALSE(missing.state->succeeded);
  RecordingServices unknown(L"/install_no_length.json");
  EXPECT_TRUE(unknown.state->succeeded) << unknown.state->detail;
  EXPECT_EQ(unknown.progress, (std::vector<int>{3, 8, 82, 86, 94, 100}));
}

}  // namespace
