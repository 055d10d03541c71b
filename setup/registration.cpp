#include "setup/registration.h"

#include "guard/install_folder.h"

std::wstring GetInstallLocation() {
  return ResolveInstallFolder();
}

std::wstring NormalizeInstallPath(const std::wstring& text) {
  return NormalizeInstallFolder(text);
}

uint32_t KilobytesOf(uint64_t bytes) {
  const uint64_t kilobytes = (bytes + 1023) / 1024;
  return kilobytes > 0xFFFFFFFEull ? 0xFFFFFFFEu : static_cast<uint32_t>(kilobytes);
}
