// The looks of a tab strip: every tab is a button; the active tab uses the active state.
#pragma once

#include <cstdint>

#include "tessel/style/button_style.h"

namespace tessel {

struct TabStripStyle {
  ButtonStyle itemButton;
  int32_t verticalItemHeight = 36;
};

}  // namespace tessel
