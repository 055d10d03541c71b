#include <windows.h>
#include <objbase.h>
#include <propkey.h>
#include <propvarutil.h>
#include <shlobj.h>
#include <shobjidl.h>

#include "base/file_system.h"
#include "guard/install_folder.h"
#include "guard/log.h"
#include "i18n/localized.h"
#include "setup/shortcuts.h"

namespace {

template <typename T>
void Release(T*& object) {
  if (object) object->Release();
  object = nullptr;
}

// COM for the calling thread for as long as the object lives; a thread already in another
// apartment mode is fine for shell links.
class ComScope {
 public:
  ComScope() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComScope() {
    if (SUCCEEDED(result_)) CoUninitialize();
  }
  bool usable() const { return SUCCEEDED(result_) || result_ == RPC_E_CHANGED_MODE; }

 private:
  HRESULT result_;
};

bool ParentFolderReady(const std::wstring& link) {
  const size_t slash = link.find_last_of(L'\\');
  return slash != std::wstring::npos && CreateDirectoryTree(link.substr(0, slash));
}

bool Toggle(bool enabled, std::wstring InstallPaths::*member, const wchar_t* what,
            bool (*create)(const std::wstring&, const InstallPaths&)) {
  InstallPaths paths;
  ComScope com;
  if (!ComputeInstallPaths(ResolveInstallFolder(), paths) || !com.usable()) {
    AppendLog(std::wstring(what) + L"failed: COM/init paths unavailable");
    return false;
  }
  const std::wstring& link = paths.*member;
  bool ok;
  if (enabled) {
    ok = ParentFolderReady(link) && create(link, paths);
  } else {
    ok = DeleteFileW(link.c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND;
  }
  AppendLog(std::wstring(what) + (ok ? L"ok" : L"failed") +
            (enabled ? L" -> enabled" : L" -> disabled"));
  return ok;
}

}  // namespace

long CreateShortcut(const std::wstring& link, const std::wstring& target,
                    const std::wstring& working_folder, const std::wstring& description,
                    const std::wstring& arguments, const std::wstring& app_user_model_id) {
  IShellLinkW* shell_link = nullptr;
  IPropertyStore* properties = nullptr;
  IPersistFile* file = nullptr;
  HRESULT hr = CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                reinterpret_cast<void**>(&shell_link));
  if (SUCCEEDED(hr)) hr = shell_link->SetPath(target.c_str());
  if (SUCCEEDED(hr)) hr = shell_link->SetWorkingDirectory(working_folder.c_str());
  if (SUCCEEDED(hr)) hr = shell_link->SetDescription(description.c_str());
  if (SUCCEEDED(hr) && !arguments.empty()) hr = shell_link->SetArguments(arguments.c_str());
  if (SUCCEEDED(hr)) hr = shell_link->SetIconLocation(target.c_str(), 0);
  if (SUCCEEDED(hr) && !app_user_model_id.empty()) {
    hr = shell_link->QueryInterface(IID_IPropertyStore, reinterpret_cast<void**>(&properties));
    PROPVARIANT value;
    PropVariantInit(&value);
    if (SUCCEEDED(hr)) hr = InitPropVariantFromString(app_user_model_id.c_str(), &value);
    if (SUCCEEDED(hr)) hr = properties->SetValue(PKEY_AppUserModel_ID, value);
    if (SUCCEEDED(hr)) hr = properties->Commit();
    PropVariantClear(&value);
    Release(properties);
  }
  if (SUCCEEDED(hr)) {
    hr = shell_link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
  }
  if (SUCCEEDED(hr)) hr = file->Save(link.c_str(), TRUE);
  Release(file);
  Release(shell_link);
  return SUCCEEDED(hr) ? 0 : static_cast<long>(hr);
}

bool CreateStartMenuShortcut(const std::wstring& link, const InstallPaths& paths) {
  return CreateShortcut(
             link, paths.app_exe, paths.install_dir,
             Localized(L"Otevře nastavení aplikace Stayhold.", L"Opens Stayhold settings."),
             L"--settings", kAppUserModelIdApp) == 0;
}

bool CreateStartupShortcut(const std::wstring& link, const InstallPaths& paths) {
  return CreateShortcut(link, paths.app_exe, paths.install_dir,
                        Localized(L"Po přihlášení spustí Stayhold na pozadí.",
                                  L"Starts Stayhold in the background after sign-in."),
                        L"", kAppUserModelIdApp) == 0;
}

bool SetDesktopShortcutEnabled(bool enabled) {
  return Toggle(enabled, &InstallPaths::desktop_shortcut, L"desktop shortcut toggle ",
                &CreateStartMenuShortcut);
}

bool SetStartupEnabled(bool enabled) {
  return Toggle(enabled, &InstallPaths::startup_shortcut, L"startup toggle ",
                &CreateStartupShortcut);
}
