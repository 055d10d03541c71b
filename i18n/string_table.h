// The constant table of every user interface text: 200 rows, each the Czech key and one text per
// language column. Generated at build time from i18n/strings/*.txt.
#pragma once

#include <cstddef>

#include "i18n/locale_table.h"

inline constexpr size_t kStringRowCount = 200;

struct KeyedStringRow {
  const wchar_t* key;                          // the Czech text every call site passes
  const wchar_t* cells[kLanguageColumnCount];  // in the order of kLanguageColumns
};

extern const KeyedStringRow kStringTable[kStringRowCount];

// Per column, how many cells are not translated yet and show the English text instead.
extern const int kUntranslatedCells[kLanguageColumnCount];
