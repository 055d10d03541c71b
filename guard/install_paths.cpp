#include "guard/install_paths.h"

#include "base/file_system.h"
#include "base/win_path.h"
#include "guard/install_folder.h"

bool ComputeInstallPaths(const std::wstring& folder, InstallPaths& paths) {
  InstallPaths p;
  if (!KnownFolderPath(KnownFolder::LocalAppData, p.local_app_data) ||
      !KnownFolderPath(KnownFolder::Startup, p.startup_dir) ||
      !KnownFolderPath(KnownFolder::CommonPrograms, p.common_programs) ||
      !KnownFolderPath(KnownFolder::Desktop, p.desktop_dir)) {
    return false;
  }
  p.program_files = L"C:\\Program Files";
  p.install_dir = NormalizeInstallFolder(folder);
  if (p.install_dir.empty()) return false;
  p.app_exe = JoinPath(p.install_dir, L"Stayhold.exe");
  p.setup_exe = JoinPath(p.install_dir, L"StayholdSetup.exe");
  p.skins_dir = JoinPath(p.install_dir, L"skins");
  p.assets_dir = JoinPath(p.install_dir, L"assets");
  p.start_menu_dir = JoinPath(p.common_programs, L"Marlowen");
  p.start_menu_subdir = JoinPath(p.start_menu_dir, L"Stayhold");
  p.startup_shortcut = JoinPath(p.startup_dir, L"Stayhold.lnk");
  p.start_menu_shortcut = JoinPath(p.start_menu_dir, L"Stayhold.lnk");
  p.desktop_shortcut = JoinPath(p.desktop_dir, L"Stayhold.lnk");
  p.legacy_menu_dir = JoinPath(p.common_programs, L"Stayhold");
  p.legacy_menu_shortcut = JoinPath(p.legacy_menu_dir, L"Stayhold.lnk");
  p.legacy_root_shortcut = JoinPath(p.common_programs, L"Stayhold.lnk");
  p.legacy_quill_dir = JoinPath(p.common_programs, L"Quill");
  p.legacy_quill_shortcut = JoinPath(p.legacy_quill_dir, L"Stayhold.lnk");
  p.legacy_app_root = JoinPath(p.local_app_data, L"Quill");
  p.legacy_app_dir = JoinPath(p.legacy_app_root, L"Stayhold");
  p.legacy_app_exe = JoinPath(p.legacy_app_dir, L"Stayhold.exe");

  for (const std::wstring* member : {&p.local_app_data,
                                     &p.program_files,
                                     &p.install_dir,
                                     &p.app_exe,
                                     &p.setup_exe,
                                     &p.skins_dir,
                                     &p.assets_dir,
                                     &p.startup_dir,
                                     &p.common_programs,
                                     &p.desktop_dir,
                                     &p.start_menu_dir,
                                     &p.start_menu_subdir,
                                     &p.startup_shortcut,
                                     &p.start_menu_shortcut,
                                     &p.desktop_shortcut,
                                     &p.legacy_menu_dir,
                                     &p.legacy_menu_shortcut,
                                     &p.legacy_root_shortcut,
                                     &p.legacy_quill_dir,
                                     &p.legacy_quill_shortcut,
                                     &p.legacy_app_root,
                                     &p.legacy_app_dir,
                                     &p.legacy_app_exe}) {
    if (member->size() >= kMaxPathChars) return false;
  }
  paths = std::move(p);
  return true;
}
