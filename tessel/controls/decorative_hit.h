// The hit rule of purely decorative controls (labels, status chips): they take the pointer only
// when there is a tooltip to show, so a click elsewhere falls through to what lies under them.
#pragma once

#include "tessel/core/control.h"

namespace tessel {

// True when the control has a description, tooltip actions or tooltip controls, or text it
// cannot show whole.
inline bool offersTooltip(const Control& control) {
  return !control.tooltipText().empty() || !control.tooltipActions().empty() ||
         !control.tooltipControls().empty() || !control.clippedText().empty();
}

}  // namespace tessel
