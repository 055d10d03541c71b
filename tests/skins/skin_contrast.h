// Readability checks over a built style sheet: every text colour against every colour of the
// surface it is drawn on, by the relative-luminance contrast ratio, and that the states of a
// button look different from each other.
#pragma once

#include <string>
#include <vector>

#include "tessel/skin/style_sheet.h"

struct ContrastProblem {
  std::wstring where;  // "button primary hot", ...
  double ratio = 0;
  double minimum = 0;
};

double ContrastRatio(tessel::Color a, tessel::Color b);

// Body text needs 4.5:1, secondary text (muted, placeholders, subtitles) 3:1, disabled text
// 2:1 so that it stays visible.
std::vector<ContrastProblem> FindContrastProblems(const tessel::StyleSheet& sheet);

// Button ids whose normal, hot, pressed and disabled surfaces are not all different.
std::vector<std::wstring> FindIndistinctButtonStates(const tessel::StyleSheet& sheet);
