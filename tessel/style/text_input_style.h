// The looks of a text input: the box per interaction state and while it has the focus,
// the selection, the caret and the attachment chips.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/control_states.h"
#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct TextInputStyle {
  ControlStates surface;  // active while the input has the focus
  SurfaceStyle selection;
  SurfaceStyle attachmentSurface;
  SurfaceStyle attachmentImageSurface;
  SurfaceStyle attachmentRemoveSurface;
  TextStyle text;
  TextStyle placeholderText;
  TextStyle attachmentText;
  Color caretColor = 0xFFFFFF;
  Color attachmentIconColor = 0xFFFFFF;
  int32_t paddingX = 8;
  int32_t paddingY = 5;
  int32_t lineHeight = 0;
  int32_t attachmentHeight = 26;
  int32_t attachmentGap = 6;
  int32_t attachmentRemoveExtent = 16;
  bool showAttachmentRemove = true;
  ScrollAcceleration scrollAcceleration;
};

}  // namespace tessel
