// Where the tests find files of the source tree, natively and under Wine (the tree on drive Z:).
#pragma once

#include <filesystem>
#include <cstdlib>
#include <string>

inline std::filesystem::path SourceFile(const std::string& relative) {
#ifdef _WIN32
  return std::filesystem::path("Z:" STAYHOLD_TEST_SOURCE_DIR) / relative;
#else
  return std::filesystem::path(STAYHOLD_TEST_SOURCE_DIR) / relative;
#endif
}

// Set to regenerate golden images after a deliberate change instead of comparing with them.
inline bool RegeneratingGoldenImages() {
  const char* value = std::getenv("STAYHOLD_REGENERATE_GOLDEN");
  return value != nullptr && value[0] == '1';
}
