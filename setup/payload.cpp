#include "setup/payload.h"

#include <cwctype>

#include "base/win_path.h"

std::vector<PayloadRow> CountingPayloadRows(const PayloadRow* table) {
  std::vector<PayloadRow> rows;
  for (const PayloadRow* row = table; row && (row->resource_id != 0 || row->relative_path); ++row) {
    if (row->resource_id > 0 && row->relative_path && row->relative_path[0] != L'\0') {
      rows.push_back(*row);
    }
  }
  return rows;
}

std::wstring PayloadFileName(const std::wstring& relative_path) {
  const size_t slash = relative_path.find_last_of(L"\\/");
  return slash == std::wstring::npos ? relative_path : relative_path.substr(slash + 1);
}

const PayloadRow* FindPackageRow(const PayloadRow* table) {
  for (const PayloadRow* row = table; row && (row->resource_id != 0 || row->relative_path); ++row) {
    if (row->resource_id <= 0 || !row->relative_path || row->relative_path[0] == L'\0') continue;
    std::wstring name = PayloadFileName(row->relative_path);
    for (wchar_t& c : name)
      c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    if (name.size() >= 4 && name.compare(name.size() - 4, 4, L".msi") == 0) return row;
  }
  return nullptr;
}

std::wstring PackageCachePath(const std::wstring& data_root, const std::wstring& version,
                              const std::wstring& relative_path) {
  std::wstring name = PayloadFileName(relative_path);
  if (name.empty()) name = L"Stayhold.msi";
  return JoinPath(JoinPath(data_root, L"setup-msi-cache"), version + L"-" + name);
}

bool HasEmbeddedPayload() {
  return !CountingPayloadRows(EmbeddedPayloadTable()).empty();
}
