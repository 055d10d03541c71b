#include "update/update_install.h"

#include "guard/log.h"
#include "base/wide_text.h"
#include "base/win_path.h"
#include "i18n/localized.h"

void SetUpdateProgress(UpdateInstallState& state, UpdateInstallServices& services, int percent,
                       const std::wstring& status) {
  {
    std::lock_guard<std::mutex> hold(state.mutex);
    state.progress = percent < 0 ? 0 : percent > 100 ? 100 : percent;
    state.status = status;
  }
  services.NotifyProgress();
}

void FinishUpdate(UpdateInstallState& state, UpdateInstallServices& services, bool succeeded,
                  bool close_app, const std::wstring& status, const std::wstring& detail) {
  {
    std::lock_guard<std::mutex> hold(state.mutex);
    state.finished = true;
    state.succeeded = succeeded;
    state.close_app = close_app;
    state.status = status;
    state.detail = detail;
    if (succeeded) state.progress = 100;  // a failure leaves the bar where it stood
  }
  services.NotifyProgress();
}

int DownloadPercent(uint32_t bytes_so_far, uint64_t content_length) {
  return static_cast<int>(static_cast<uint64_t>(bytes_so_far) * 70 / content_length + 10);
}

std::wstring SilentSetupParameters(const std::wstring& install_folder) {
  std::wstring parameters = L"--install --quiet --preserve-options --restart-app --settings";
  if (!install_folder.empty()) parameters += L" --install-dir \"" + install_folder + L"\"";
  return parameters;
}

std::wstring DownloadedSetupPath(const std::wstring& temp_folder, const std::wstring& version) {
  return JoinPath(temp_folder, L"StayholdSetup-" + version + L".exe");
}

void RunStayholdAutoUpdate(UpdateInstallServices& services,
                           const std::shared_ptr<UpdateInstallState>& shared_state,
                           UpdateManifest manifest) {
  UpdateInstallState& state = *shared_state;
  const auto fail = [&](const std::wstring& status, const std::wstring& detail) {
    FinishUpdate(state, services, false, false, status, detail);
  };
  SetUpdateProgress(
      state, services, 3,
      Localized(L"Obnovuje se manifest aktualizací...", L"Refreshing update manifest..."));

  // An update offered an hour ago is not trusted: the fresh document decides.
  const UpdateCheckResult fresh = services.RefreshManifest();
  if (fresh.ok) {
    if (fresh.manifest.version != manifest.version ||
        fresh.manifest.setup_url != manifest.setup_url ||
        !EqualsIgnoringCase(fresh.manifest.sha256, manifest.sha256)) {
      AppendLog(L"update install manifest refreshed: cached=" + manifest.version + L" latest=" +
                fresh.manifest.version + L" setup_or_hash_changed");
    }
    manifest = fresh.manifest;
  }
  services.PublishCheckResult(fresh);
  if (!fresh.ok) {
    fail(Localized(L"Kontrola aktualizací selhala.", L"Update check failed."),
         fresh.error.empty() ? L"The fresh update manifest could not be loaded." : fresh.error);
    return;
  }
  if (!fresh.update_available) {
    FinishUpdate(state, services, true, false,
                 Localized(L"Aplikace je podle nového manifestu aktuální.",
                           L"The app is current according to the fresh manifest."),
                 L"");
    return;
  }
  SetUpdateProgress(
      state, services, 8,
      Localized(L"Připravuje se stažení instalace...", L"Preparing setup download..."));
  if (manifest.setup_url.empty()) {
    fail(Localized(L"Aktualizace se nezdařila.", L"Update failed."),
         Localized(L"Manifest neobsahuje setup_url.", L"The manifest does not contain setup_url."));
    return;
  }
  const std::wstring target = DownloadedSetupPath(services.TempFolder(), manifest.version);
  const std::wstring downloading = Localized(L"Stahuje se instalace...", L"Downloading setup...");
  std::wstring error;
  if (!services.DownloadSetup(
          manifest.setup_url, target,
          [&](int percent) { SetUpdateProgress(state, services, percent, downloading); }, error)) {
    fail(Localized(L"Stažení se nezdařilo.", L"Download failed."), error);
    return;
  }
  SetUpdateProgress(state, services, 86,
                    Localized(L"Ověřuje se SHA-256...", L"Verifying SHA-256..."));
  // An empty sha256 skips the verification on purpose.
  if (!manifest.sha256.empty()) {
    std::wstring hex;
    const std::wstring failed = Localized(L"Ověření se nezdařilo.", L"Verification failed.");
    if (!services.HashFileSha256(target, hex, error)) {
      fail(failed, error);
      return;
    }
    if (!EqualsIgnoringCase(hex, manifest.sha256)) {
      fail(failed, Localized(L"SHA-256 stažené instalace neodpovídá manifestu.",
                             L"The downloaded setup SHA-256 does not match the manifest."));
      return;
    }
  }
  SetUpdateProgress(state, services, 94,
                    Localized(L"Spouští se tichá instalace...", L"Starting silent setup..."));
  if (!services.LaunchSilentSetup(target, error)) {
    fail(Localized(L"Instalaci se nepodařilo spustit.", L"Setup could not be started."), error);
    return;
  }
  FinishUpdate(
      state, services, true, true,
      Localized(L"Instalace běží na pozadí. Aplikace se zavře a po instalaci znovu otevře.",
                L"Setup is running silently. The app will close and reopen after "
                L"installation."),
      L"");
}
