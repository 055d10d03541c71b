// Every path of an installation, derived from its folder and the user's known folders. Each member
// must fit in 260 characters; any overflow or failed folder query fails the whole computation.
#pragma once

#include <string>

struct InstallPaths {
  std::wstring local_app_data;
  std::wstring program_files;
  std::wstring install_dir;
  std::wstring app_exe;
  std::wstring setup_exe;
  std::wstring skins_dir;
  std::wstring assets_dir;
  std::wstring startup_dir;
  std::wstring common_programs;
  std::wstring desktop_dir;
  std::wstring start_menu_dir;
  std::wstring start_menu_subdir;
  std::wstring startup_shortcut;
  std::wstring start_menu_shortcut;
  std::wstring desktop_shortcut;
  std::wstring legacy_menu_dir;
  std::wstring legacy_menu_shortcut;
  std::wstring legacy_root_shortcut;
  std::wstring legacy_quill_dir;
  std::wstring legacy_quill_shortcut;
  std::wstring legacy_app_root;
  std::wstring legacy_app_dir;
  std::wstring legacy_app_exe;
};

inline constexpr size_t kMaxPathChars = 260;  // including the terminating zero

bool ComputeInstallPaths(const std::wstring& folder, InstallPaths& paths);
