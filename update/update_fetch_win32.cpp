// The platform's half of the self-update: the manifest fetch, the setup download, its SHA-256,
// and the elevated silent start of the setup.
#include <windows.h>
#include <shellapi.h>
#include <wincrypt.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "guard/install_folder.h"
#include "guard/log.h"
#include "i18n/localized.h"
#include "update/http_get_win32.h"
#include "update/update_check.h"
#include "update/update_fetch_win32.h"
#include "update/update_install.h"

bool FetchUpdateManifest(const std::wstring& url, std::wstring& text, std::wstring& error) {
  static const HttpGetTexts kTexts = {
      L"WinHTTP cannot parse update URL.", L"Update manifest request failed.",
      L"Update manifest returned HTTP status ", L"Could not read update manifest.",
      L"Could not read update manifest data."};
  std::string body;
  const bool ok = HttpGet(
      url, kTexts, HttpGetLimits{}, [](uint64_t, std::wstring&) { return true; },
      [&body](const char* data, DWORD size, std::wstring&) {
        body.append(data, size);
        return true;
      },
      error);
  if (!ok) return false;
  text.clear();
  if (body.empty()) return true;  // fails later for its missing version
  const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, body.data(),
                                         static_cast<int>(body.size()), nullptr, 0);
  if (length > 0) {
    text.resize(static_cast<size_t>(length));
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, body.data(), static_cast<int>(body.size()),
                        text.data(), length);
  }
  if (text.empty()) {
    error = L"Update manifest is not valid UTF-8.";
    return false;
  }
  return true;
}

bool DownloadSetupFile(const std::wstring& url, const std::wstring& target,
                       const std::function<void(int)>& progress, std::wstring& error) {
  static const HttpGetTexts kTexts = {
      L"WinHTTP cannot parse setup URL.", L"Setup download request failed.",
      L"Setup download returned HTTP status ", L"Could not read setup download.",
      L"Could not read setup download data."};
  HttpGetLimits limits;
  limits.receive_ms = 30000;
  FILE* file = nullptr;
  uint64_t length = 0;
  uint32_t received = 0;
  const bool ok = HttpGet(
      url, kTexts, limits,
      [&](uint64_t content_length, std::wstring& failure) {
        length = content_length;
        std::error_code ignored;
        std::filesystem::create_directories(std::filesystem::path(target).parent_path(), ignored);
        file = _wfopen(target.c_str(), L"wb");
        if (!file) failure = L"Downloaded setup could not be written.";
        return file != nullptr;
      },
      [&](const char* data, DWORD size, std::wstring& failure) {
        if (std::fwrite(data, 1, size, file) != size) {
          failure = L"Downloaded setup write failed.";
          return false;
        }
        received += size;
        if (length != 0) progress(DownloadPercent(received, length));
        return true;
      },
      error);
  if (file) std::fclose(file);
  if (ok) progress(82);
  return ok;
}

bool HashFileSha256(const std::wstring& path, std::wstring& hex, std::wstring& error) {
  HCRYPTPROV provider = 0;
  HCRYPTHASH hash = 0;
  FILE* file = nullptr;
  bool ok = false;
  if (!CryptAcquireContextW(&provider, nullptr, nullptr, PROV_RSA_AES, CRYPT_VERIFYCONTEXT)) {
    error = L"SHA-256 provider could not be opened.";
  } else if (!CryptCreateHash(provider, CALG_SHA_256, 0, 0, &hash)) {
    error = L"SHA-256 hash could not be created.";
  } else if (!(file = _wfopen(path.c_str(), L"rb"))) {
    error = L"Downloaded setup could not be opened for hash check.";
  } else {
    std::vector<BYTE> block(65536);
    ok = true;
    size_t read;
    while ((read = std::fread(block.data(), 1, block.size(), file)) > 0) {
      if (!CryptHashData(hash, block.data(), static_cast<DWORD>(read), 0)) {
        error = L"SHA-256 hash update failed.";
        ok = false;
        break;
      }
    }
    BYTE digest[32] = {};
    DWORD size = sizeof(digest);
    if (ok && !CryptGetHashParam(hash, HP_HASHVAL, digest, &size, 0)) {
      error = L"SHA-256 hash could not be finalized.";
      ok = false;
    }
    if (ok) {
      static const wchar_t kDigits[] = L"0123456789ABCDEF";
      hex.clear();
      for (BYTE byte : digest) {
        hex += kDigits[byte >> 4];
        hex += kDigits[byte & 15];
      }
    }
  }
  if (file) std::fclose(file);
  if (hash) CryptDestroyHash(hash);
  if (provider) CryptReleaseContext(provider, 0);
  return ok;
}

bool LaunchSilentSetup(const std::wstring& setup_path, std::wstring& error) {
  const std::wstring parameters = SilentSetupParameters(ResolveInstallFolder());
  SHELLEXECUTEINFOW info = {};
  info.cbSize = sizeof(info);
  info.fMask = SEE_MASK_NOCLOSEPROCESS;
  info.lpVerb = L"runas";  // the elevation prompt belongs to this call
  info.lpFile = setup_path.c_str();
  info.lpParameters = parameters.c_str();
  info.nShow = SW_SHOWNORMAL;
  if (!ShellExecuteExW(&info)) {
    error = Localized(L"Tichou instalaci se nepodařilo spustit.",
                      L"Silent setup could not be started.");
    return false;
  }
  if (info.hProcess) CloseHandle(info.hProcess);
  AppendLog(L"silent update setup launched: " + setup_path);
  return true;
}
