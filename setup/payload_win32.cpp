#include <windows.h>

#include <cstdio>
#include <filesystem>

#include "guard/paths.h"
#include "guard/version.h"
#include "setup/payload.h"
#include "setup/payload_win32.h"
#include "setup/setup_failure.h"
#include "setup/setup_skins.h"
#include "base/file_system.h"

bool WriteEmbeddedResource(int resource_id, const std::wstring& target_path) {
  HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(resource_id), L"SHDPAYLOAD");
  if (!found) return false;
  HGLOBAL loaded = LoadResource(nullptr, found);
  const void* bytes = loaded ? LockResource(loaded) : nullptr;
  const DWORD size = SizeofResource(nullptr, found);
  if (!bytes || size == 0) return false;  // an empty resource counts as missing
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path(target_path).parent_path(), ignored);
  FILE* file = _wfopen(target_path.c_str(), L"wb");
  if (!file) return false;
  const bool ok = std::fwrite(bytes, 1, size, file) == size;
  return std::fclose(file) == 0 && ok;
}

bool PrepareEmbeddedPackage(std::wstring& path) {
  const PayloadRow* row = FindPackageRow(EmbeddedPayloadTable());
  if (!row) {
    ReportSetupFailure(L"extract-msi",
                       L"Instalace neobsahuje balíček MSI. Stáhněte ji prosím znovu.",
                       L"Setup does not contain an MSI package. Please download setup again.");
    return false;
  }
  path = PackageCachePath(DataDirectory(), kStayholdVersion, row->relative_path);
  if (!WriteEmbeddedResource(row->resource_id, path)) {
    ReportSetupFailure(L"extract-msi",
                       L"Instalace nedokázala rozbalit vestavěný balíček MSI. Stáhněte ji znovu a "
                       L"zkontrolujte, zda ji neblokuje bezpečnostní software.",
                       L"Setup could not extract the embedded MSI package. Download setup again "
                       L"and check whether security software blocked it.");
    return false;
  }
  return true;
}

std::vector<std::wstring> WriteSetupSkins() {
  std::vector<std::wstring> written;
  const std::wstring cache = SetupSkinCacheFolder();
  CreateDirectoryTree(cache);
  for (const PayloadRow& row : SetupSkinRows(EmbeddedPayloadTable())) {
    const std::wstring target = cache + L"\\" + PayloadFileName(row.relative_path);
    if (WriteEmbeddedResource(row.resource_id, target)) written.push_back(target);
  }
  return written;
}
