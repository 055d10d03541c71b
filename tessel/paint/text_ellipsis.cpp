#include "tessel/paint/text_ellipsis.h"

namespace tessel {

std::wstring endEllipsisText(const std::wstring& text, int32_t width,
                             const std::function<int32_t(const std::wstring&)>& measureWidth) {
  if (measureWidth(text) <= width) return text;
  // Widths grow with the prefix, so a binary search finds the longest prefix that fits.
  size_t low = 0;
  size_t high = text.size();
  while (low < high) {
    const size_t middle = (low + high + 1) / 2;
    if (measureWidth(text.substr(0, middle) + L"...") <= width) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  return text.substr(0, low) + L"...";
}

}  // namespace tessel
