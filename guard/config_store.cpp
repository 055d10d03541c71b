#include "guard/config_store.h"

#include <algorithm>
#include <climits>
#include <cwctype>

#include "base/file_system.h"
#include "base/wide_text.h"
#include "guard/app_skins.h"
#include "guard/paths.h"
#include "i18n/language.h"
#include "tessel/skin/skin_picker.h"

namespace {

constexpr wchar_t kGeneral[] = L"general";
constexpr wchar_t kProfiles[] = L"profiles";
constexpr wchar_t kLegacyWindows[] = L"windows";
constexpr wchar_t kUiState[] = L"ui_state.settings";

// A damaged count must not turn one start into billions of profile reads; no user keeps more.
constexpr int kMaxStoredItems = 1000;

std::wstring ProfileSection(size_t index) {
  return L"profile" + DecimalText(index);
}
std::wstring WindowKey(size_t index) {
  return L"window" + DecimalText(index);
}

std::wstring ControlSection(long long index) {
  return std::wstring(kUiState) + L".control" + SignedDecimalText(index < 0 ? 0 : index);
}

int Clamp(int value, int low, int high) {
  return value < low ? low : value > high ? high : value;
}

RestartWindow ClampWindow(RestartWindow window) {
  window.day = Clamp(window.day, 0, 6);
  window.from_minute = Clamp(window.from_minute, 0, 1439);
  window.to_minute = Clamp(window.to_minute, 0, 1439);
  return window;
}

std::wstring WindowValue(const RestartWindow& window) {
  return SignedDecimalText(window.enabled ? 1 : 0) + L"," + SignedDecimalText(window.day) + L"," +
         SignedDecimalText(window.from_minute) + L"," + SignedDecimalText(window.to_minute);
}

// One "%d" of swscanf: white space, an optional sign, at least one digit.
bool ScanInt(const std::wstring& text, size_t& at, int& out) {
  while (at < text.size() && std::iswspace(static_cast<wint_t>(text[at])))
    ++at;
  bool negative = false;
  if (at < text.size() && (text[at] == L'-' || text[at] == L'+')) negative = text[at++] == L'-';
  const size_t digits = at;
  long long value = 0;
  while (at < text.size() && text[at] >= L'0' && text[at] <= L'9') {
    if (value <= INT_MAX) value = value * 10 + (text[at] - L'0');
    ++at;
  }
  if (at == digits) return false;
  if (negative) value = -value;
  out = static_cast<int>(value < INT_MIN ? INT_MIN : value > INT_MAX ? INT_MAX : value);
  return true;
}

bool IsKeptControl(const std::wstring& id) {
  return id == L"settings-window-table" || id == L"settings-window-scroll";
}

// Reads the windows of one list, skipping values that are blank after trimming.
void ReadWindows(ProfileStore& store, const std::wstring& path, const std::wstring& section,
                 const std::wstring& key_prefix, int count, std::vector<RestartWindow>& out) {
  if (count > kMaxStoredItems) count = kMaxStoredItems;
  for (int m = 0; m < count; ++m) {
    const std::wstring value =
        store.ReadString(path, section, key_prefix + DecimalText(static_cast<unsigned>(m)), L"");
    if (TrimWhiteSpace(value).empty()) continue;
    out.push_back(ParseWindowValue(value));
  }
}

}  // namespace

std::wstring ReadIniString(ProfileStore& store, const std::wstring& path,
                           const std::wstring& section, const std::wstring& key,
                           const std::wstring& fallback) {
  return store.ReadString(path, section, key, fallback);
}

RestartWindow ParseWindowValue(const std::wstring& text) {
  int fields[4] = {};
  size_t at = 0;
  for (int i = 0; i < 4; ++i) {
    if (i > 0) {
      if (at >= text.size() || text[at] != L',') return RestartWindow{};
      ++at;
    }
    if (!ScanInt(text, at, fields[i])) return RestartWindow{};
  }
  // Extra text behind the fourth number is accepted, as the scan stops there.
  return ClampWindow(RestartWindow{fields[0] != 0, fields[1], fields[2], fields[3]});
}

std::wstring NormalizeUiPerformanceProfile(const std::wstring& text) {
  std::wstring value = TrimWhiteSpace(text);
  for (wchar_t& c : value) {
    c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    if (c == L'_') c = L'-';
  }
  for (const wchar_t* best : {L"best", L"best-graphics", L"max-detail", L"max-details",
                              L"maximum-detail", L"maximum-details", L"max-detaily"}) {
    if (value == best) return L"best-graphics";
  }
  for (const wchar_t* fast :
       {L"maximum-performance", L"max-performance", L"max-vykon", L"performance"}) {
    if (value == fast) return L"maximum-performance";
  }
  return L"balanced";
}

WindowUiState NormalizeUiState(WindowUiState state) {
  state.minimized = false;
  if (state.show_command == 2 || state.show_command == 6 || state.show_command == 7) {
    state.show_command = 1;
  }
  std::vector<ControlUiState> kept;
  for (ControlUiState& control : state.controls) {
    if (!IsKeptControl(control.id)) continue;
    control.restored_bounds = true;
    control.restored_values = true;
    kept.push_back(std::move(control));
  }
  state.controls = std::move(kept);
  return state;
}

StayholdConfig NormalizeConfig(StayholdConfig config,
                               const std::vector<tessel::SkinDefinition>& skins) {
  config.language = NormalizeLanguageSetting(config.language);
  config.skin_id = tessel::repairedSkinId(skins, config.skin_id);
  config.ui_performance_profile = NormalizeUiPerformanceProfile(config.ui_performance_profile);
  for (BehaviorProfile& profile : config.profiles) {
    profile.name = TrimWhiteSpace(profile.name);
    for (RestartWindow& window : profile.windows)
      window = ClampWindow(window);
  }
  if (config.profiles.empty()) config.profiles.push_back(BehaviorProfile{});
  config.active_profile_index =
      Clamp(config.active_profile_index, 0, static_cast<int>(config.profiles.size()) - 1);
  if (config.has_settings_ui_state) {
    config.settings_ui_state = NormalizeUiState(std::move(config.settings_ui_state));
  }
  return config;
}

std::optional<WindowUiState> ReadUiState(ProfileStore& store, const std::wstring& path) {
  if (store.ReadInt(path, kUiState, L"schema_version", 0) < 1) return std::nullopt;
  WindowUiState state;
  state.x = store.ReadInt(path, kUiState, L"window_x", 0);
  state.y = store.ReadInt(path, kUiState, L"window_y", 0);
  state.width = store.ReadInt(path, kUiState, L"window_width", 0);
  state.height = store.ReadInt(path, kUiState, L"window_height", 0);
  state.show_command = store.ReadInt(path, kUiState, L"show_command", 1);
  state.maximized = store.ReadInt(path, kUiState, L"maximized", 0) != 0;
  const int count = std::min(store.ReadInt(path, kUiState, L"control_count", 0), kMaxStoredItems);
  for (int n = 0; n < count; ++n) {
    const std::wstring section = ControlSection(n);
    ControlUiState control;
    control.id = store.ReadString(path, section, L"id", L"");
    if (!IsKeptControl(control.id)) continue;
    control.x = store.ReadInt(path, section, L"x", 0);
    control.y = store.ReadInt(path, section, L"y", 0);
    control.width = store.ReadInt(path, section, L"width", 0);
    control.height = store.ReadInt(path, section, L"height", 0);
    control.style_id = store.ReadString(path, section, L"style_id", L"");
    const int values = std::min(store.ReadInt(path, section, L"value_count", 0), kMaxStoredItems);
    for (int v = 0; v < values; ++v) {
      control.values.push_back(
          store.ReadString(path, section, L"value" + DecimalText(static_cast<unsigned>(v)), L""));
    }
    state.controls.push_back(std::move(control));
  }
  if (state.width <= 0 && state.height <= 0 && state.controls.empty()) return std::nullopt;
  return state;
}

bool WriteUiState(ProfileStore& store, const std::wstring& path, const WindowUiState& state) {
  bool ok = true;
  const int old_count =
      std::min(store.ReadInt(path, kUiState, L"control_count", 0), kMaxStoredItems);
  ok = store.DeleteSection(path, kUiState) && ok;
  const long long last =
      std::max<long long>(old_count, static_cast<long long>(state.controls.size()));
  for (long long n = 0; n < last; ++n)
    ok = store.DeleteSection(path, ControlSection(n)) && ok;

  const auto write = [&](const std::wstring& section, const wchar_t* key, const std::wstring& v) {
    ok = store.WriteString(path, section, key, v) && ok;
  };
  write(kUiState, L"schema_version", L"1");
  write(kUiState, L"window_x", SignedDecimalText(state.x));
  write(kUiState, L"window_y", SignedDecimalText(state.y));
  write(kUiState, L"window_width", SignedDecimalText(state.width));
  write(kUiState, L"window_height", SignedDecimalText(state.height));
  write(kUiState, L"show_command", SignedDecimalText(state.show_command));
  write(kUiState, L"maximized", state.maximized ? L"1" : L"0");
  write(kUiState, L"control_count",
        SignedDecimalText(static_cast<long long>(state.controls.size())));
  for (size_t n = 0; n < state.controls.size(); ++n) {
    const ControlUiState& control = state.controls[n];
    const std::wstring section = ControlSection(static_cast<long long>(n));
    write(section, L"id", control.id);
    write(section, L"x", SignedDecimalText(control.x));
    write(section, L"y", SignedDecimalText(control.y));
    write(section, L"width", SignedDecimalText(control.width));
    write(section, L"height", SignedDecimalText(control.height));
    write(section, L"style_id", control.style_id);
    write(section, L"value_count",
          SignedDecimalText(static_cast<long long>(control.values.size())));
    for (size_t v = 0; v < control.values.size(); ++v) {
      ok = store.WriteString(path, section, L"value" + DecimalText(v), control.values[v]) && ok;
    }
  }
  return ok;
}

StayholdConfig LoadConfig(ProfileStore& store, const std::vector<tessel::SkinDefinition>& skins) {
  StayholdConfig config;
  const std::wstring path = ConfigFilePath();
  const bool exists = IsRegularFile(path);
  int profile_count = 0;
  if (exists) {
    // The older key decides while the newer one is missing.
    int legacy = store.ReadInt(path, kGeneral, L"manual_blocking_enabled", -1);
    if (legacy < 0) legacy = config.guard_enabled ? 1 : 0;
    config.guard_enabled = store.ReadInt(path, kGeneral, L"guard_enabled", legacy) != 0;
    config.language = store.ReadString(path, kGeneral, L"language", config.language);
    config.skin_id = store.ReadString(path, kGeneral, L"skin_id", config.skin_id);
    config.ui_performance_profile =
        store.ReadString(path, kGeneral, L"ui_performance_profile", config.ui_performance_profile);
    profile_count = store.ReadInt(path, kProfiles, L"count", 0);
    if (profile_count < 1) {
      BehaviorProfile legacy_profile;
      ReadWindows(store, path, kLegacyWindows, L"item",
                  store.ReadInt(path, kLegacyWindows, L"count", 0), legacy_profile.windows);
      config.profiles.push_back(std::move(legacy_profile));
    } else {
      config.active_profile_index = store.ReadInt(path, kProfiles, L"active_index", 0);
      for (int n = 0; n < std::min(profile_count, kMaxStoredItems); ++n) {
        const std::wstring section = ProfileSection(static_cast<size_t>(n));
        BehaviorProfile profile;
        profile.name = store.ReadString(path, section, L"name", L"");
        ReadWindows(store, path, section, L"window",
                    store.ReadInt(path, section, L"windows_count", 0), profile.windows);
        config.profiles.push_back(std::move(profile));
      }
    }
    if (std::optional<WindowUiState> state = ReadUiState(store, path)) {
      config.settings_ui_state = std::move(*state);
      config.has_settings_ui_state = true;
    }
  }
  config = NormalizeConfig(std::move(config), skins);
  // A first start creates the file and a legacy layout is rewritten in the present one.
  if (!exists || profile_count == 0) SaveConfig(store, config, skins);
  return config;
}

bool SaveConfig(ProfileStore& store, const StayholdConfig& original,
                const std::vector<tessel::SkinDefinition>& skins) {
  const StayholdConfig config = NormalizeConfig(original, skins);
  const std::wstring path = ConfigFilePath();
  const size_t slash = path.find_last_of(L'\\');
  if (slash == std::wstring::npos || !CreateDirectoryTree(path.substr(0, slash))) return false;

  bool ok = true;
  const auto write = [&](const std::wstring& section, const std::wstring& key,
                         const std::wstring& value) {
    ok = store.WriteString(path, section, key, value) && ok;
  };
  const int old_profiles = std::min(store.ReadInt(path, kProfiles, L"count", 0), kMaxStoredItems);
  write(kGeneral, L"guard_enabled", config.guard_enabled ? L"1" : L"0");
  write(kGeneral, L"language", config.language);
  write(kGeneral, L"skin_id", config.skin_id);
  write(kGeneral, L"ui_performance_profile", config.ui_performance_profile);
  write(kProfiles, L"count", DecimalText(config.profiles.size()));
  write(kProfiles, L"active_index", SignedDecimalText(config.active_profile_index));

  for (size_t n = 0; n < config.profiles.size(); ++n) {
    const BehaviorProfile& profile = config.profiles[n];
    const std::wstring section = ProfileSection(n);
    const int old_windows =
        std::min(store.ReadInt(path, section, L"windows_count", 0), kMaxStoredItems);
    write(section, L"name", profile.name);
    ok = store.DeleteKey(path, section, L"blocking_enabled") && ok;
    write(section, L"windows_count", DecimalText(profile.windows.size()));
    for (size_t m = 0; m < profile.windows.size(); ++m) {
      write(section, WindowKey(m), WindowValue(profile.windows[m]));
    }
    for (int m = static_cast<int>(profile.windows.size()); m < old_windows; ++m) {
      ok = store.DeleteKey(path, section, WindowKey(static_cast<size_t>(m))) && ok;
    }
  }
  for (int n = static_cast<int>(config.profiles.size()); n < old_profiles; ++n) {
    ok = store.DeleteSection(path, ProfileSection(static_cast<size_t>(n))) && ok;
  }
  ok = store.DeleteKey(path, kGeneral, L"manual_blocking_enabled") && ok;
  ok = store.DeleteSection(path, kLegacyWindows) && ok;
  if (config.has_settings_ui_state) {
    ok = WriteUiState(store, path, config.settings_ui_state) && ok;
  }
  return ok;
}

StayholdConfig LoadConfig() {
  return LoadConfig(SystemProfileStore(), AppSkinCatalogue());
}
bool SaveConfig(const StayholdConfig& config) {
  return SaveConfig(SystemProfileStore(), config, AppSkinCatalogue());
}
