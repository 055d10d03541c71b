// The setup's embedded payload: resources of type SHDPAYLOAD listed by a compiled-in table of
// ids and relative paths. The setup build lists the package and the skin documents; the guard
// application's table is empty.
#pragma once

#include <string>
#include <vector>

struct PayloadRow {
  int resource_id;
  const wchar_t* relative_path;
};

// The rows, ending in a row of zero.
const PayloadRow* EmbeddedPayloadTable();

// Rows with an id above 0 and a path.
std::vector<PayloadRow> CountingPayloadRows(const PayloadRow* table);
// The first counting row whose file name ends in ".msi" (any case), or null.
const PayloadRow* FindPackageRow(const PayloadRow* table);
// The last component of a relative path; either separator counts.
std::wstring PayloadFileName(const std::wstring& relative_path);
// setup-msi-cache\<version>-<file name> inside the data folder.
std::wstring PackageCachePath(const std::wstring& data_root, const std::wstring& version,
                              const std::wstring& relative_path);

bool HasEmbeddedPayload();
// Writes the package to the cache; false with the failure recorded under "extract-msi".
bool PrepareEmbeddedPackage(std::wstring& path);
