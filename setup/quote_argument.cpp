#include "setup/quote_argument.h"

std::wstring QuoteArgument(const std::wstring& text) {
  std::wstring out = L"\"";
  size_t backslashes = 0;
  for (wchar_t c : text) {
    if (c == L'\\') {
      ++backslashes;
      continue;
    }
    // Backslashes count only in front of a quotation mark, where each must be doubled.
    out.append(c == L'"' ? backslashes * 2 + 1 : backslashes, L'\\');
    backslashes = 0;
    out += c;
  }
  out.append(backslashes * 2, L'\\');
  return out + L"\"";
}
