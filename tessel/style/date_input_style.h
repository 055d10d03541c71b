// The looks of a date input: the box and its arrow per interaction state, and the calendar popup
// with its header, weekday row and day cells.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/control_states.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct DateInputStyle {
  ControlStates surface;       // the box; active is not used
  ControlStates arrowSurface;  // normal, hot and pressed
  SurfaceStyle popupSurface;
  SurfaceStyle headerSurface;
  ControlStates daySurface;  // a day cell: hot, pressed, and active for the selected day
  SurfaceStyle todaySurface;
  TextStyle text;
  TextStyle headerText;
  TextStyle weekdayText;
  TextStyle dayText;
  TextStyle weekendText;
  TextStyle saturdayText;
  TextStyle sundayText;
  TextStyle mutedDayText;
  Color arrowColor = 0xFFFFFF;
  int32_t arrowWidth = 28;
  int32_t popupWidth = 252;
  int32_t popupPadding = 8;
  int32_t popupGap = 4;
  int32_t headerHeight = 32;
  int32_t weekdayHeight = 22;
  int32_t dayCellHeight = 30;
  int32_t navButtonExtent = 28;
};

}  // namespace tessel
