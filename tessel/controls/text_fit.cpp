#include "tessel/controls/text_fit.h"

#include <algorithm>
#include <utility>

namespace tessel {
namespace {

ScreenTextMeasure& screenMeasure() {
  static ScreenTextMeasure measure;
  return measure;
}

}  // namespace

void setScreenTextMeasure(ScreenTextMeasure measure) {
  screenMeasure() = std::move(measure);
}

int32_t measuredTextWidth(const std::wstring& text, const TextStyle& style) {
  if (const ScreenTextMeasure& measure = screenMeasure()) return measure(text, style);
  const int32_t perCharacter = std::max(style.pointSize * 2 / 3, 5);
  return static_cast<int32_t>(text.size()) * perCharacter;
}

bool textIsClipped(const std::wstring& text, const TextStyle& style, int32_t width) {
  if (text.empty()) return false;
  if (width < 1) return true;
  return measuredTextWidth(text, style) > width;
}

}  // namespace tessel
