#include "guard/paths.h"

#include "base/file_system.h"
#include "base/win_path.h"
#include "guard/install_folder.h"
#include "guard/install_paths.h"

namespace {

constexpr wchar_t kSkinGuideName[] = L"HOW_TO_CREATE_CUSTOM_SKIN.txt";

}  // namespace

std::wstring DataDirectory() {
  // The install folder plays no part in the result, but a failed computation sends the data to
  // the temporary folder.
  InstallPaths paths;
  if (ComputeInstallPaths(ResolveInstallFolder(), paths) && !paths.local_app_data.empty()) {
    return JoinPath(paths.local_app_data, L"Stayhold");
  }
  return JoinPath(TempFolder(), L"Stayhold");
}

std::wstring ConfigFilePath() {
  return JoinPath(DataDirectory(), L"config.ini");
}
std::wstring LogDirectory() {
  return JoinPath(DataDirectory(), L"logs");
}
std::wstring LogFilePath() {
  return JoinPath(LogDirectory(), L"stayhold.log");
}

std::wstring ExecutableDirectory() {
  const ModuleFileName module = ReadModuleFileName();
  return ModuleFolderFromFileName(module.text, module.copied, 260);
}

std::wstring SkinsDirectory() {
  return JoinPath(ExecutableDirectory(), L"skins");
}
std::wstring AssetsDirectory() {
  return JoinPath(ExecutableDirectory(), L"assets");
}
std::wstring SkinGuidePath() {
  return JoinPath(SkinsDirectory(), kSkinGuideName);
}

std::wstring InstalledSkinsDirectory() {
  InstallPaths paths;
  if (!ComputeInstallPaths(ResolveInstallFolder(), paths)) return std::wstring();
  return paths.skins_dir;
}

std::wstring InstalledSkinGuidePath() {
  return JoinPath(InstalledSkinsDirectory(), kSkinGuideName);
}

void OpenLogsFolder() {
  const std::wstring folder = LogDirectory();
  CreateDirectoryTree(folder);
  ShellOpen(folder);
}

void OpenSkinGuide() {
  for (const std::wstring& guide : {SkinGuidePath(), InstalledSkinGuidePath()}) {
    if (!guide.empty() && IsRegularFile(guide)) {
      ShellOpen(guide);
      return;
    }
  }
  std::wstring folder = SkinsDirectory();
  if (folder.empty() || !IsDirectory(folder)) folder = InstalledSkinsDirectory();
  if (folder.empty()) return;
  CreateDirectoryTree(folder);
  ShellOpen(folder);
}

namespace {

bool ShortcutPresent(std::wstring InstallPaths::*member) {
  InstallPaths paths;
  if (!ComputeInstallPaths(ResolveInstallFolder(), paths)) return false;
  return IsRegularFile(paths.*member);
}

}  // namespace

bool IsDesktopShortcutPresent() {
  return ShortcutPresent(&InstallPaths::desktop_shortcut);
}
bool IsStartupShortcutPresent() {
  return ShortcutPresent(&InstallPaths::startup_shortcut);
}
