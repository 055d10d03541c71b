#include "setup/setup_skins.h"

#include "base/file_system.h"
#include "base/wide_text.h"
#include "base/win_path.h"
#include "guard/install_folder.h"
#include "guard/install_paths.h"

std::vector<PayloadRow> SetupSkinRows(const PayloadRow* table) {
  std::vector<PayloadRow> rows;
  for (const PayloadRow& row : CountingPayloadRows(table)) {
    const std::wstring path = LowerCase(row.relative_path);
    const size_t slash = path.find_last_of(L"\\/");
    if (slash == std::wstring::npos || path.size() < 5 ||
        path.compare(path.size() - 5, 5, L".json") != 0) {
      continue;
    }
    const size_t parent = path.find_last_of(L"\\/", slash - 1);
    const std::wstring folder =
        path.substr(parent == std::wstring::npos ? 0 : parent + 1,
                    slash - (parent == std::wstring::npos ? 0 : parent + 1));
    if (folder == L"skins") rows.push_back(row);
  }
  return rows;
}

std::wstring SetupSkinCacheFolder() {
  InstallPaths paths;
  if (ComputeInstallPaths(ResolveInstallFolder(), paths) && !paths.local_app_data.empty()) {
    return JoinPath(JoinPath(paths.local_app_data, L"Stayhold"), L"setup-skin-cache");
  }
  return JoinPath(TempFolder(), L"Stayhold-setup-skin-cache");
}
