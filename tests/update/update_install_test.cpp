#include "update/update_install.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

namespace {

const wchar_t kRunning[] =
    L"Setup is running silently. The app will close and reopen after installation.";

UpdateManifest Manifest(const wchar_t* version, const wchar_t* sha256,
                        const wchar_t* setup_url = L"https://h/StayholdSetup.exe") {
  return UpdateManifest{version, L"", setup_url, sha256, L"", L"", L"", {}};
}

// Services with scripted answers that record what the worker did.
struct ScriptedServices final : UpdateInstallServices {
  UpdateCheckResult fresh{false, true, true, Manifest(L"1.0.120", L"ABCDEF"), L""};
  bool download_ok = true, hash_ok = true, launch_ok = true;
  std::wstring hash = L"ABCDEF";
  std::vector<int> download_progress = {10, 45, 80, 82};
  std::shared_ptr<UpdateInstallState> state = std::make_shared<UpdateInstallState>();
  std::vector<int> progress;  // every change the dialog was told of
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
    error = L"Setup download returned HTTP status 500.";
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
  void Run(const UpdateManifest& cached) { RunStayholdAutoUpdate(*this, state, cached); }
};

TEST(RunStayholdAutoUpdate, HappyPathInItsExactOrder) {
  // An unchanged manifest is not logged.
  ScriptedServices unchanged;
  unchanged.Run(Manifest(L"1.0.120", L"ABCDEF"));
  EXPECT_TRUE(Fake().log.empty());
  // The refreshed manifest replaces the cached one; its hash compares without case.
  ScriptedServices services;
  services.fresh.manifest = Manifest(L"1.0.121", L"abcdef", L"https://h/new.exe");
  services.Run(Manifest(L"1.0.120", L"ABCDEF"));
  EXPECT_TRUE(services.state->finished && services.state->succeeded && services.state->close_app);
  EXPECT_EQ(services.state->status, kRunning);
  EXPECT_EQ(services.progress, (std::vector<int>{3, 8, 10, 45, 80, 82, 86, 94, 100}));
  const std::wstring setup = L"C:\\Temp\\StayholdSetup-1.0.121.exe";
  EXPECT_EQ(services.events, (std::vector<std::wstring>{L"download https://h/new.exe -> " + setup,
                                                        L"hash " + setup, L"launch " + setup}));
  EXPECT_EQ(services.published, 1);
  EXPECT_EQ(Fake().log,
            std::vector<std::wstring>{L"update install manifest refreshed: cached=1.0.120 "
                                      L"latest=1.0.121 setup_or_hash_changed"});
}

TEST(RunStayholdAutoUpdate, EndingsOfEveryStep) {
  using Script = void (*)(ScriptedServices&);
  // What goes wrong; then success, status, detail, whether the setup was launched, and where the
  // progress bar stands at the end (a failure leaves it where it stood).
  const std::tuple<const char*, Script, bool, const wchar_t*, const wchar_t*, bool, int> cases[] = {
      {"the refreshed check failed",
       [](ScriptedServices& s) {
         s.fresh = {false, false, false, {}, L"HTTP status 404."};
       },
       false, L"Update check failed.", L"HTTP status 404.", false, 3},
      {"the refreshed check failed without a text", [](ScriptedServices& s) { s.fresh.ok = false; },
       false, L"Update check failed.", L"The fresh update manifest could not be loaded.", false, 3},
      {"the update was withdrawn", [](ScriptedServices& s) { s.fresh.update_available = false; },
       true, L"The app is current according to the fresh manifest.", L"", false, 100},
      {"no setup_url", [](ScriptedServices& s) { s.fresh.manifest.setup_url.clear(); }, false,
       L"Update failed.", L"The manifest does not contain setup_url.", false, 8},
      {"download failed", [](ScriptedServices& s) { s.download_ok = false; }, false,
       L"Download failed.", L"Setup download returned HTTP status 500.", false, 82},
      {"wrong hash never launches", [](ScriptedServices& s) { s.hash = L"000000"; }, false,
       L"Verification failed.", L"The downloaded setup SHA-256 does not match the manifest.", false,
       86},
      {"empty sha256 skips the verification",
       [](ScriptedServices& s) {
         s.fresh.manifest.sha256.clear();
         s.hash = L"000000";
       },
       true, kRunning, L"", true, 100},
      {"the elevation was refused", [](ScriptedServices& s) { s.launch_ok = false; }, false,
       L"Setup could not be started.", L"Silent setup could not be started.", true, 94}};
  for (const auto& [what, script, succeeded, status, detail, launched, progress] : cases) {
    SCOPED_TRACE(what);
    ScriptedServices services;
    script(services);
    services.Run(Manifest(L"1.0.120", L"ABCDEF"));
    const UpdateInstallState& state = *services.state;
    EXPECT_TRUE(state.finished);
    EXPECT_EQ(state.succeeded, succeeded);
    EXPECT_EQ(state.status, status);
    EXPECT_EQ(state.detail, detail);
    EXPECT_EQ(!services.events.empty() && services.events.back().starts_with(L"launch"), launched);
    EXPECT_EQ(state.close_app, launched && succeeded);
    EXPECT_EQ(state.progress, progress);
    EXPECT_EQ(services.published, 1);  // the tray follows the fresh truth regardless
  }
}

TEST(UpdateInstallHelpers, PercentProgressParametersAndPath) {
  EXPECT_EQ(DownloadPercent(500, 1000), 45);
  EXPECT_EQ(DownloadPercent(4000000000u, 4000000000u), 80);  // 64-bit multiplication
  ScriptedServices services;
  SetUpdateProgress(*services.state, services, 220, L"x");
  EXPECT_EQ(services.state->progress, 100);
  SetUpdateProgress(*services.state, services, -5, L"x");
  EXPECT_EQ(services.state->progress, 0);
  EXPECT_EQ(SilentSetupParameters(L""),
            L"--install --quiet --preserve-options --restart-app --settings");
}

}  // namespace
