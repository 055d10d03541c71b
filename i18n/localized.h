// The one text lookup. Every call site passes the Czech text, which is the key, and the English
// text. A pair with a row of the string table reads that row's cell in the current language; a
// pair without one reads Czech in Czech and English in every other language.
#pragma once

#include <string>

struct KeyedStringRow;

std::wstring Localized(const std::wstring& cs, const std::wstring& en);

// The first row whose key equals `cs` character for character, or null.
const KeyedStringRow* FindStringRow(const std::wstring& cs);
