// The words a skin uses for a gradient's direction and kind. The numbers are stored in style
// records and cache keys, so they never change.
#pragma once

#include <cstdint>
#include <string>

namespace tessel {

// "vertical" 0 ... "diagonalupreverse" 7, compared after key normalization; also the digits.
bool parseGradientDirection(const std::wstring& text, int32_t& direction);
// "linear" 0, "reflected" 1, "radial" 2, "diamond" 3, "conic" 4; also the digits.
bool parseGradientKind(const std::wstring& text, int32_t& kind);

}  // namespace tessel
