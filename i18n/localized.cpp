#include "i18n/localized.h"

#include "i18n/language.h"

std::wstring Localized(const std::wstring& cs, const std::wstring& en) {
  const int index = CurrentLanguageIndex();
  return index == LanguageColumnIndex(L"cs") ? cs : en;
}
