// The user's configuration as plain records: the global switch, language, skin, UI profile and the
// behaviour profiles with their weekly restart windows. Times of day are minutes since local
// midnight; days count from Monday as 0.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct RestartWindow {
  bool enabled = true;
  int32_t day = 0;            // 0 Monday .. 6 Sunday: the day the window starts
  int32_t from_minute = 780;  // inclusive
  int32_t to_minute = 1020;   // exclusive; not above from_minute means overnight
};

struct BehaviorProfile {
  std::wstring name;
  std::vector<RestartWindow> windows;
};

// The remembered state of one control of the settings dialog; what `values` hold is the control's
// business (column widths, a scroll position).
struct ControlUiState {
  std::wstring id;
  int32_t x = 0;
  int32_t y = 0;
  int32_t width = 0;
  int32_t height = 0;
  std::wstring style_id;
  bool restored_bounds = false;  // not stored
  bool restored_values = false;  // not stored
  std::vector<std::wstring> values;
};

// Where and how the settings dialog was left.
struct WindowUiState {
  int32_t x = 0;
  int32_t y = 0;
  int32_t width = 0;
  int32_t height = 0;
  int32_t show_command = 1;
  bool maximized = false;
  bool minimized = false;  // not stored; always false after normalization
  std::vector<ControlUiState> controls;
};

struct StayholdConfig {
  bool guard_enabled = true;
  std::wstring language = L"auto";
  std::wstring skin_id = L"win11-auto";
  std::wstring ui_performance_profile = L"balanced";
  int32_t active_profile_index = 0;
  std::vector<BehaviorProfile> profiles;

  bool has_settings_ui_state = false;
  WindowUiState settings_ui_state;
};
