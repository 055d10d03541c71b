// Small helpers over wide (UTF-16 on Windows) text that several subsystems share.
#pragma once

#include <cstdint>
#include <string>

// White space as Windows' iswspace sees it: the C runtime's set plus the Unicode spaces, which
// the C library here only knows under a non-C locale.
bool IsWhiteSpace(wchar_t c);

// White space trimmed at both ends, by IsWhiteSpace.
std::wstring TrimWhiteSpace(const std::wstring& text);

// Each code unit through towlower (the C runtime's case rules, not the locale's).
std::wstring LowerCase(std::wstring text);

// Equal after towlower of each character (the C runtime's case rules, not the locale's).
bool EqualsIgnoringCase(const std::wstring& a, const std::wstring& b);

// UTF-8 of wide text. On 16-bit wchar_t, pairs of surrogates are combined and a lone surrogate
// becomes U+FFFD, as WideCharToMultiByte does.
std::string Utf8FromWide(const std::wstring& text);

// Strict UTF-8 decoding: false for any malformed, overlong, surrogate or out-of-range sequence,
// as MultiByteToWideChar with MB_ERR_INVALID_CHARS refuses them.
bool WideFromUtf8Strict(const std::string& bytes, std::wstring& text);

// The value of one hexadecimal digit of either case, or -1.
int HexDigitValue(wchar_t c);

// The leading decimal number of `text` as wcstol reads it (white space, sign, digits, the rest
// ignored), saturated at 32 bits on every platform. False when there is no number.
bool ParseLeadingInt32(const std::wstring& text, int32_t& value);

// Decimal digits of an unsigned value.
std::wstring DecimalText(unsigned long long value);
// Decimal digits with a minus sign for a negative value.
std::wstring SignedDecimalText(long long value);
