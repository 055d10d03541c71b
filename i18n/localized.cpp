#include "i18n/localized.h"

#include "i18n/language.h"
#include "i18n/string_table.h"

const KeyedStringRow* FindStringRow(const std::wstring& cs) {
  for (const KeyedStringRow& row : kStringTable) {
    if (cs == row.key) return &row;
  }
  return nullptr;
}

std::wstring Localized(const std::wstring& cs, const std::wstring& en) {
  const int index = CurrentLanguageIndex();
  const KeyedStringRow* row = FindStringRow(cs);
  if (row && index >= 0) {
    const wchar_t* text = row->cells[index];
    if (text && text[0] != L'\0') return text;
  }
  // A pair without a row speaks Czech in Czech and English everywhere else.
  return index == LanguageColumnIndex(L"cs") ? cs : en;
}
