// Feeds arbitrary text to the update manifest reader: it must never crash, read out of bounds or
// keep a history entry without a version, whatever the download server sends.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "update/manifest_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // Two bytes a character, as the decoded text of Windows would hold them.
  std::wstring text;
  for (size_t i = 0; i + 1 < size; i += 2)
    text += static_cast<wchar_t>(data[i] | (data[i + 1] << 8));
  const UpdateManifest manifest = ParseUpdateManifest(text, L"page");
  for (const UpdateHistoryEntry& entry : manifest.history)
    if (entry.version.empty()) std::abort();
  // Without the key the compiled-in page stands.
  if (manifest.release_url.empty() && text.find(L"release_url") == std::wstring::npos) std::abort();
  BuildChangeNotesSinceInstalled(manifest);
  return 0;
}
