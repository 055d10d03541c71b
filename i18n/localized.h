// The one text lookup. Every call site passes the Czech text, which is the key, and the English
// text; a language without a translation of the pair reads English, and Czech reads Czech.
#pragma once

#include <string>

std::wstring Localized(const std::wstring& cs, const std::wstring& en);
