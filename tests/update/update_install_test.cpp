#include "update/update_install.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

namespace {

// Services with scripted answers that record what the worker did.
class ScriptedServices final : public UpdateInstallServices {
 public:
  UpdateCheckResult fresh;
  bool download_ok = true;
  std::wstring download_error;
  std::vector<int> download_progress = {10, 45, 80, 82};
  std::wstring hash = L"ABCDEF";
  bool hash_ok = true;
  bool launch_ok = true;
  std::shared_ptr<UpdateInstallState> state;

  std::vector<int> progress;
  std::vector<std::wstring> events;
  int published = 0;

  UpdateCheckResult RefreshManifest() override { return fresh; }
  void PublishCheckResult(const UpdateCheckResult&) override { ++published; }
  std::wstring TempFolder() override { return L"C:\\Temp\\"; }
  bool DownloadSetup(const std::wstring& url, const std::wstring& target,
                     const std::function<void(int)>& report, std::wstring& error) override {
    events.push_back(L"download " + url + L" -> " + target);
    for (int p : download_progress)
      report(p);
    error = download_error;
    return download_ok;
  }
  bool HashFileSha256(const std::wstring& path, std::wstring& hex, std::wstring& error) override {
    events.push_back(L"hash " + path);
    hex = hash;
    error = L"SHA-256 provider could not be opened.";
    return hash_ok;
  }
  bool LaunchSilentSetup(const std::wstring& path, std::wstring& error) override {
    events.push_back(L"launch " + path);
    error = L"Silent setup could not be started.";
    return launch_ok;
  }
  void NotifyProgress() override {
    std::lock_guard<std::mutex> hold(state->mutex);
    if (progress.empty() || progress.back() != state->progress) progress.push_back(state->progress);
  }
};

UpdateManifest Manifest(const wchar_t* version, const wchar_t* sha256) {
  UpdateManifest m;
  m.version = version;
  m.setup_url = L"https://h/StayholdSetup.exe";
  m.sha256 = sha256;
  return m;
}

struct Outcome {
  bool finished, succeeded, close_app;
  std::wstring status, detail;
};

Outcome RunWorker(ScriptedServices& services, const UpdateManifest& cached) {
  services.state = std::make_shared<UpdateInstallState>();
  RunStayholdAutoUpdate(services, services.state, cached);
  std::lock_guard<std::mutex> hold(services.state->mutex);
  return Outcome{services.state->finished, services.state->succeeded, services.state->close_app,
                 services.state->status, services.state->detail};
}

ScriptedServices Fresh(const UpdateManifest& manifest, bool available = true) {
  ScriptedServices services;
  services.fresh.ok = true;
  services.fresh.update_available = available;
  services.fresh.manifest = manifest;
  return services;
}

TEST(RunStayholdAutoUpdate, HappyPathInItsExactOrder) {
  ScriptedServices services = Fresh(Manifest(L"1.0.120", L"abcdef"));  // lower case matches
  const Outcome outcome = RunWorker(services, Manifest(L"1.0.120", L"ABCDEF"));
  EXPECT_TRUE(outcome.finished && outcome.succeeded && outcome.close_app);
  EXPECT_EQ(outcome.status,
            L"Setup is running silently. The app will close and reopen after installation.");
  EXPECT_EQ(services.progress, (std::vector<int>{3, 8, 10, 45, 80, 82, 86, 94, 100}));
  const std::wstring setup = L"C:\\Temp\\StayholdSetup-1.0.120.exe";
  EXPECT_EQ(services.events,
            (std::vector<std::wstring>{L"download https://h/StayholdSetup.exe -> " + setup,
                                       L"hash " + setup, L"launch " + setup}));
  EXPECT_EQ(services.published, 1);
  EXPECT_TRUE(Fake().log.empty());  // nothing changed in the refreshed manifest
}

TEST(RunStayholdAutoUpdate, EndingsOfEveryStep) {
  struct Case {
    const char* what;
    void (*script)(ScriptedServices&);
    UpdateManifest cached;
    bool succeeded;
    const wchar_t* status;
    const wchar_t* detail;
    bool launched;
  };
  const UpdateManifest cached = Manifest(L"1.0.120", L"ABCDEF");
  const Case cases[] = {
      {"the refreshed check failed",
       [](ScriptedServices& s) {
         s.fresh.ok = false;
         s.fresh.error = L"Update manifest returned HTTP status 404.";
       },
       cached, false, L"Update check failed.", L"Update manifest returned HTTP status 404.", false},
      {"the refreshed check failed without a text", [](ScriptedServices& s) { s.fresh.ok = false; },
       cached, false, L"Update check failed.", L"The fresh update manifest could not be loaded.",
       false},
      {"the update was withdrawn", [](ScriptedServices& s) { s.fresh.update_available = false; },
       cached, true, L"The app is current according to the fresh manifest.", L"", false},
      {"no setup_url", [](ScriptedServices& s) { s.fresh.manifest.setup_url.clear(); }, cached,
       false, L"Update failed.", L"The manifest does not contain setup_url.", false},
      {"download failed",
       [](ScriptedServices& s) {
         s.download_ok = false;
         s.download_error = L"Setup download returned HTTP status 500.";
       },
       cached, false, L"Download failed.", L"Setup download returned HTTP status 500.", false},
      {"hash could not be computed", [](ScriptedServices& s) { s.hash_ok = false; }, cached, false,
       L"Verification failed.", L"SHA-256 provider could not be opened.", false},
      {"wrong hash never launches", [](ScriptedServices& s) { s.hash = L"000000"; }, cached, false,
       L"Verification failed.", L"The downloaded setup SHA-256 does not match the manifest.",
       false},
      {"empty sha256 skips the verification",
       [](ScriptedServices& s) {
         s.fresh.manifest.sha256.clear();
         s.hash = L"000000";
       },
       cached, true,
       L"Setup is running silently. The app will close and reopen after installation.", L"", true},
      {"the elevation was refused", [](ScriptedServices& s) { s.launch_ok = false; }, cached, false,
       L"Setup could not be started.", L"Silent setup could not be started.", true},
  };
  for (const Case& c : cases) {
    ResetFakePlatform();
    ScriptedServices services = Fresh(cached);
    c.script(services);
    const Outcome outcome = RunWorker(services, c.cached);
    EXPECT_TRUE(outcome.finished) << c.what;
    EXPECT_EQ(outcome.succeeded, c.succeeded) << c.what;
    EXPECT_EQ(outcome.status, c.status) << c.what;
    EXPECT_EQ(outcome.detail, c.detail) << c.what;
    const bool launched =
        !services.events.empty() && services.events.back().compare(0, 6, L"launch") == 0;
    EXPECT_EQ(launched, c.launched) << c.what;
    EXPECT_EQ(outcome.close_app, c.launched && c.succeeded) << c.what;
    EXPECT_EQ(services.published, 1) << c.what;  // the tray follows the fresh truth regardless
  }
}

TEST(RunStayholdAutoUpdate, AFailureLeavesTheProgressWhereItStood) {
  ScriptedServices services = Fresh(Manifest(L"1.0.120", L"ABCDEF"));
  services.hash = L"000000";
  RunWorker(services, Manifest(L"1.0.120", L"ABCDEF"));
  EXPECT_EQ(services.state->progress, 86);
}

TEST(RunStayholdAutoUpdate, UnknownLengthShowsNoMovementInTheDownload) {
  ScriptedServices services = Fresh(Manifest(L"1.0.120", L""));
  services.download_progress = {82};
  RunWorker(services, Manifest(L"1.0.120", L""));
  EXPECT_EQ(services.progress, (std::vector<int>{3, 8, 82, 86, 94, 100}));
}

TEST(RunStayholdAutoUpdate, ARefreshedManifestReplacesTheCachedOneAndIsLogged) {
  UpdateManifest refreshed = Manifest(L"1.0.121", L"ABCDEF");
  refreshed.setup_url = L"https://h/new.exe";
  ScriptedServices services = Fresh(refreshed);
  RunWorker(services, Manifest(L"1.0.120", L"abcdef"));
  EXPECT_EQ(services.events.front(),
            L"download https://h/new.exe -> C:\\Temp\\StayholdSetup-1.0.121.exe");
  EXPECT_EQ(Fake().log,
            std::vector<std::wstring>{L"update install manifest refreshed: cached=1.0.120 "
                                      L"latest=1.0.121 setup_or_hash_changed"});
}

TEST(UpdateInstallHelpers, PercentParametersAndPath) {
  EXPECT_EQ(DownloadPercent(0, 1000), 10);
  EXPECT_EQ(DownloadPercent(500, 1000), 45);
  EXPECT_EQ(DownloadPercent(1000, 1000), 80);
  EXPECT_EQ(DownloadPercent(3000, 1000), 220);  // a short length overshoots; the state clamps
  EXPECT_EQ(DownloadPercent(4000000000u, 4000000000u), 80);  // 64-bit multiplication
  EXPECT_EQ(SilentSetupParameters(L"D:\\Apps\\Stayhold"),
            L"--install --quiet --preserve-options --restart-app --settings --install-dir "
            L"\"D:\\Apps\\Stayhold\"");
  EXPECT_EQ(SilentSetupParameters(L""),
            L"--install --quiet --preserve-options --restart-app --settings");
  EXPECT_EQ(DownloadedSetupPath(L"C:\\Temp", L"1.0.120 beta"),
            L"C:\\Temp\\StayholdSetup-1.0.120 beta.exe");
}

TEST(SetUpdateProgress, ClampsToZeroAndHundred) {
  ScriptedServices services;
  services.state = std::make_shared<UpdateInstallState>();
  SetUpdateProgress(*services.state, services, 220, L"x");
  EXPECT_EQ(services.state->progress, 100);
  SetUpdateProgress(*services.state, services, -5, L"x");
  EXPECT_EQ(services.state->progress, 0);
}

}  // namespace
