// The look of one run of text: family, size, weight and the two colours.
#pragma once

#include <cstdint>
#include <string>

#include "tessel/style/color.h"

namespace tessel {

struct TextStyle {
  std::wstring fontFamily = L"Segoe UI";
  int32_t pointSize = 9;
  int32_t weight = 400;
  Color color = 0x000000;
  Color disabledColor = 0x808080;
  // Set by controls for their own runs; skins never set them.
  bool italic = false;
  bool underline = false;
  bool operator==(const TextStyle&) const = default;
};

}  // namespace tessel
