#include "base/wide_text.h"

#include <cstdint>
#include <cwchar>
#include <cwctype>

bool IsWhiteSpace(wchar_t c) {
  if (std::iswspace(static_cast<wint_t>(c))) return true;
  const uint32_t code = static_cast<uint32_t>(c);
  return code == 0x85 || code == 0xA0 || code == 0x1680 || (code >= 0x2000 && code <= 0x200A) ||
         code == 0x2028 || code == 0x2029 || code == 0x202F || code == 0x205F || code == 0x3000;
}

bool ParseLeadingInt32(const std::wstring& text, int32_t& value) {
  const wchar_t* begin = text.c_str();
  wchar_t* end = nullptr;
  // A 32-bit long saturates where a 64-bit one wouldn't; clamp to read alike everywhere.
  const long long number = std::wcstoll(begin, &end, 10);
  if (end == begin) return false;
  value = number > INT32_MAX   ? INT32_MAX
          : number < INT32_MIN ? INT32_MIN
                               : static_cast<int32_t>(number);
  return true;
}

int HexDigitValue(wchar_t c) {
  if (c >= L'0' && c <= L'9') return c - L'0';
  if (c >= L'a' && c <= L'f') return c - L'a' + 10;
  if (c >= L'A' && c <= L'F') return c - L'A' + 10;
  return -1;
}

std::wstring TrimWhiteSpace(const std::wstring& text) {
  size_t begin = 0;
  size_t end = text.size();
  while (begin < end && IsWhiteSpace(text[begin]))
    ++begin;
  while (end > begin && IsWhiteSpace(text[end - 1]))
    --end;
  return text.substr(begin, end - begin);
}

std::wstring LowerCase(std::wstring text) {
  for (wchar_t& c : text)
    c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
  return text;
}

bool EqualsIgnoringCase(const std::wstring& a, const std::wstring& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (std::towlower(static_cast<wint_t>(a[i])) != std::towlower(static_cast<wint_t>(b[i]))) {
      return false;
    }
  }
  return true;
}

namespace {

void AppendUtf8(std::string& out, char32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

bool IsHighSurrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char32_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

}  // namespace

std::string Utf8FromWide(const std::wstring& text) {
  std::string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    char32_t code = static_cast<char32_t>(text[i]);
    if (IsHighSurrogate(code) && i + 1 < text.size() &&
        IsLowSurrogate(static_cast<char32_t>(text[i + 1]))) {
      code = 0x10000 + ((code - 0xD800) << 10) + (static_cast<char32_t>(text[i + 1]) - 0xDC00);
      ++i;
    } else if (IsHighSurrogate(code) || IsLowSurrogate(code) || code > 0x10FFFF) {
      code = 0xFFFD;
    }
    AppendUtf8(out, code);
  }
  return out;
}

bool WideFromUtf8Strict(const std::string& bytes, std::wstring& text) {
  std::wstring out;
  out.reserve(bytes.size());
  for (size_t i = 0; i < bytes.size();) {
    const unsigned char lead = static_cast<unsigned char>(bytes[i]);
    size_t length = 0;
    char32_t code = 0;
    char32_t minimum = 0;
    if (lead < 0x80) {
      length = 1, code = lead;
    } else if ((lead & 0xE0) == 0xC0) {
      length = 2, code = lead & 0x1F, minimum = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
      length = 3, code = lead & 0x0F, minimum = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
      length = 4, code = lead & 0x07, minimum = 0x10000;
    } else {
      return false;
    }
    if (i + length > bytes.size()) return false;
    for (size_t k = 1; k < length; ++k) {
      const unsigned char next = static_cast<unsigned char>(bytes[i + k]);
      if ((next & 0xC0) != 0x80) return false;
      code = (code << 6) | (next & 0x3F);
    }
    if (code < minimum || code > 0x10FFFF || IsHighSurrogate(code) || IsLowSurrogate(code)) {
      return false;
    }
    if (sizeof(wchar_t) == 2 && code >= 0x10000) {
      out += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
      out += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    } else {
      out += static_cast<wchar_t>(code);
    }
    i += length;
  }
  text = std::move(out);
  return true;
}

std::wstring DecimalText(unsigned long long value) {
  std::wstring digits;
  do {
    digits.insert(digits.begin(), static_cast<wchar_t>(L'0' + value % 10));
    value /= 10;
  } while (value != 0);
  return digits;
}

std::wstring SignedDecimalText(long long value) {
  if (value < 0) return L"-" + DecimalText(0ull - static_cast<unsigned long long>(value));
  return DecimalText(static_cast<unsigned long long>(value));
}
