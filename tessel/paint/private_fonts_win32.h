// Fonts shipped beside the program: the folder "fonts" next to the executable is loaded once per
// process, privately (FR_PRIVATE: no other process sees the fonts), before the first font is made,
// and released at exit. Which files count is decided by private_fonts.h.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tessel {

// Loads the folder "fonts" beside the executable on the first call; later calls do nothing.
// A missing folder is normal. What was loaded is released when the process exits.
void ensurePrivateFontsLoaded();

// Loads the files privateFontFiles picks from `folder` (its subfolders are not read), each with
// AddFontResourceExW(FR_PRIVATE). A file that fails to load is skipped. Returns the full paths
// that loaded, in load order; the caller releases them.
std::vector<std::wstring> loadPrivateFontsFrom(const std::wstring& folder);

// RemoveFontResourceExW(FR_PRIVATE) for each path; returns how many were released.
size_t releasePrivateFonts(const std::vector<std::wstring>& paths);

}  // namespace tessel
