// The self-update's platform half against a loopback server (tests/wine/update_server.py,
// started by tests/scenarios/update_scenario.sh): real WinHTTP, real CryptoAPI, a real launch of
// a stand-in setup. The addresses come from the environment.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

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
  const struct {
    const wchar_t* path;
    bool ok, available;
    const wchar_t* version;
    const wchar_t* error;
  } cases[] = {
      {L"/newer.json", true, true, L"1.0.999", L""},
      {L"/equal.json", true, false, L"1.0.112", L""},
      {L"/older.json", true, false, L"1.0.99", L""},
      {L"/short.json", true, false, L"1.0", L""},
      {L"/history_first.json", true, true, L"1.0.500", L""},
      {L"/invalid.json", false, false, L"", L"Update manifest is not valid UTF-8."},
      {L"/empty.json", false, false, L"", L"Update manifest does not contain a version."},
      {L"/status/404", false, false, L"", L"Update manifest returned HTTP status 404."},
  };
  for (const auto& c : cases) {
    const UpdateCheckResult result = CheckForUpdateAt(Http(c.path), true);
    EXPECT_EQ(result.ok, c.ok) << c.path;
    EXPECT_EQ(result.update_available, c.available) << c.path;
    EXPECT_EQ(result.manifest.version, c.version) << c.path;
    EXPECT_EQ(result.error, c.error) << c.path;
  }
}

TEST(FetchUpdateManifest, ReaderEffectsSurviveTheTransport) {
  const UpdateCheckResult versions = CheckForUpdateAt(Http(L"/versions.json"), false);
  ASSERT_TRUE(versions.ok);
  ASSERT_EQ(versions.manifest.history.size(), 2u);
  EXPECT_EQ(versions.manifest.history[0].version, L"1.0.150");
  EXPECT_EQ(versions.manifest.changes_cs, L"\u010Cesk\u00E1 pozn\u00E1mka");  // UTF-8 decoded
  EXPECT_EQ(versions.manifest.changes, L"literal u0041");                     // \u is not decoded
}

TEST(FetchUpdateManifest, RefusedConnectionAndStall) {
  std::wstring text, error;
  EXPECT_FALSE(FetchUpdateManifest(
      L"http://127.0.0.1:" + Env(L"STAYHOLD_TEST_CLOSED_PORT") + L"/x.json", text, error));
  EXPECT_EQ(error, L"Update manifest request failed.");
  EXPECT_FALSE(FetchUpdateManifest(L"no url at all", text, error));
  EXPECT_EQ(error, L"WinHTTP cannot parse update URL.");

  // A server that accepts and then stalls. Windows ends the wait at the (here injected, short)
  // receive limit; Wine 8 does not enforce it and waits for the server to close after 4 s.
  // Either way the request fails with the request text and well before the production limit.
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

TEST(FetchUpdateManifest, HttpsWithATrustedLoopbackCertificate) {
  const std::wstring https = Env(L"STAYHOLD_TEST_HTTPS");
  ASSERT_FALSE(https.empty());
  const UpdateCheckResult result = CheckForUpdateAt(https + L"/newer.json", true);
  EXPECT_TRUE(result.ok) << result.error;
  EXPECT_EQ(result.manifest.version, L"1.0.999");
}

TEST(HashFileSha256, MatchesTheSumComputedOutside) {
  std::wstring hex, error;
  ASSERT_TRUE(HashFileSha256(Env(L"STAYHOLD_TEST_SETUP_PATH"), hex, error)) << error;
  std::wstring expected = Env(L"STAYHOLD_TEST_SETUP_SHA256");
  for (wchar_t& c : expected)
    c = static_cast<wchar_t>(towupper(c));
  EXPECT_EQ(hex, expected);
  EXPECT_FALSE(HashFileSha256(L"C:\\no\\such\\file.exe", hex, error));
  EXPECT_EQ(error, L"Downloaded setup could not be opened for hash check.");
}

std::wstring FakeSetupRecord() {
  wchar_t temp[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, temp);
  return std::wstring(temp) + L"stayhold_fake_setup_args.txt";
}

std::string ReadRecord() {
  std::ifstream file(std::filesystem::path(FakeSetupRecord()), std::ios::binary);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

// The real services, with every progress report recorded.
class RecordingServices final : public UpdateInstallServices {
 public:
  explicit RecordingServices(const std::wstring& manifest_url) : real_(nullptr, manifest_url) {}
  std::shared_ptr<UpdateInstallState> state = std::make_shared<UpdateInstallState>();
  std::vector<int> progress;
  bool launched = false;

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
    launched = true;
    DeleteFileW(FakeSetupRecord().c_str());
    const bool ok = real_.LaunchSilentSetup(path, error);
    // Let the stand-in finish, so that the next download may overwrite its file.
    for (int i = 0; ok && i < 100 && ReadRecord().empty(); ++i)
      Sleep(50);
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

UpdateManifest Cached(const wchar_t* version) {
  UpdateManifest manifest;
  manifest.version = version;
  return manifest;
}

bool IsIncreasing(const std::vector<int>& values) {
  for (size_t i = 1; i < values.size(); ++i) {
    if (values[i] < values[i - 1]) return false;
  }
  return true;
}

TEST(RunStayholdAutoUpdate, DownloadsVerifiesAndStartsTheSetupSilently) {
  RecordingServices services(Http(L"/install.json"));  // lower-case sha256 in the manifest
  RunStayholdAutoUpdate(services, services.state, Cached(L"1.0.999"));
  EXPECT_TRUE(services.state->succeeded) << services.state->detail;
  EXPECT_TRUE(services.state->close_app);
  ASSERT_GE(services.progress.size(), 7u);
  EXPECT_EQ(services.progress[0], 3);
  EXPECT_EQ(services.progress[1], 8);
  EXPECT_GE(services.progress[2], 10);
  EXPECT_TRUE(IsIncreasing(services.progress));
  const std::vector<int> tail(services.progress.end() - 4, services.progress.end());
  EXPECT_EQ(tail, (std::vector<int>{82, 86, 94, 100}));
  for (size_t i = 2; i + 4 < services.progress.size(); ++i) {
    EXPECT_LE(services.progress[i], 80) << i;  // the download spans 10 to 80
  }
  // The stand-in setup records its command line; wait for it to run.
  for (int i = 0; i < 100 && ReadRecord().empty(); ++i)
    Sleep(50);
  const std::string record = ReadRecord();
  EXPECT_NE(record.find("--install --quiet --preserve-options --restart-app --settings "
                        "--install-dir \"C:\\Program Files\\Stayhold\""),
            std::string::npos)
      << record;
  EXPECT_EQ(record.size() - record.find("--install --quiet"),
            std::string("--install --quiet --preserve-options --restart-app --settings "
                        "--install-dir \"C:\\Program Files\\Stayhold\"")
                .size())
      << record;
}

TEST(RunStayholdAutoUpdate, EndingsOverRealHttp) {
  const struct {
    const wchar_t* manifest;
    bool succeeded;
    const wchar_t* status;
    const wchar_t* detail;
    bool launched;
  } cases[] = {
      {L"/install_wrong_hash.json", false, L"Verification failed.",
       L"The downloaded setup SHA-256 does not match the manifest.", false},
      {L"/released.json", true,
       L"Setup is running silently. The app will close and reopen after installation.", L"", true},
      {L"/install_no_hash.json", true,
       L"Setup is running silently. The app will close and reopen after installation.", L"", true},
      {L"/withdrawn.json", true, L"The app is current according to the fresh manifest.", L"",
       false},
      {L"/install_missing_setup.json", false, L"Download failed.",
       L"Setup download returned HTTP status 404.", false},
  };
  for (const auto& c : cases) {
    RecordingServices services(Http(c.manifest));
    RunStayholdAutoUpdate(services, services.state, Cached(L"1.0.999"));
    EXPECT_EQ(services.state->succeeded, c.succeeded) << c.manifest;
    EXPECT_EQ(services.state->status, c.status) << c.manifest;
    EXPECT_EQ(services.state->detail, c.detail) << c.manifest;
    EXPECT_EQ(services.launched, c.launched) << c.manifest;
  }
}

TEST(RunStayholdAutoUpdate, UnknownLengthShowsNoMovementBetween10And82) {
  RecordingServices services(Http(L"/install_no_length.json"));
  RunStayholdAutoUpdate(services, services.state, Cached(L"1.0.999"));
  EXPECT_TRUE(services.state->succeeded) << services.state->detail;
  EXPECT_EQ(services.progress, (std::vector<int>{3, 8, 82, 86, 94, 100}));
}

}  // namespace
