#include "update/version_compare.h"

#include <cstdint>
#include <vector>

namespace {

std::vector<uint32_t> VersionNumbers(const std::wstring& text) {
  std::vector<uint32_t> numbers;
  bool in_number = false;
  for (wchar_t c : text) {
    if (c >= L'0' && c <= L'9') {
      if (!in_number) numbers.push_back(0);
      in_number = true;
      numbers.back() = numbers.back() * 10u + static_cast<uint32_t>(c - L'0');  // wraps at 32 bits
    } else {
      in_number = false;
    }
  }
  return numbers;
}

}  // namespace

int CompareVersions(const std::wstring& a, const std::wstring& b) {
  std::vector<uint32_t> left = VersionNumbers(a);
  std::vector<uint32_t> right = VersionNumbers(b);
  const size_t length = left.size() > right.size() ? left.size() : right.size();
  left.resize(length, 0);
  right.resize(length, 0);
  for (size_t i = 0; i < length; ++i) {
    const int32_t x = static_cast<int32_t>(left[i]);
    const int32_t y = static_cast<int32_t>(right[i]);
    if (x != y) return x < y ? -1 : 1;
  }
  return 0;
}
