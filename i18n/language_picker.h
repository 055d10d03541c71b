// The lines of the settings dialog's language picker: "Automatic (Windows)" and one line per
// locale table entry with its native and English names, and which line the setting selects.
#pragma once

#include <string>
#include <vector>

// 89 lines: the automatic choice, then "native / English (tag)" per entry in table order.
std::vector<std::wstring> LanguagePickerItems();

// 0 for "auto", else the table index of the setting + 1; 0 when the setting is not found.
int LanguagePickerIndex();
