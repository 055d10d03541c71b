// Shortening one line of text to a width with a trailing "...", as DT_END_ELLIPSIS does: the
// longest prefix that still fits with the three dots behind it. For targets that draw text
// themselves (the memory-image canvas); a device context asks GDI instead.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tessel {

// `text` itself when its width is at most `width`; otherwise the longest prefix followed by
// "..." that fits, down to "..." alone (kept even when that does not fit, as GDI keeps it).
std::wstring endEllipsisText(const std::wstring& text, int32_t width,
                             const std::function<int32_t(const std::wstring&)>& measureWidth);

}  // namespace tessel
