// How far the painter goes: the UI performance profile with its area gates for the expensive
// layers, the per-thread paint state that lets a window's own profile rule its paint, and the
// render mode with the diagnostics line a window logs after painting.
#pragma once

#include <cstdint>
#include <string>

#include "tessel/style/geometry.h"

namespace tessel {

enum class UiPerformanceProfile : int32_t {
  BestGraphics = 0,
  Balanced = 1,
  MaximumPerformance = 2
};
enum class RenderMode : int32_t { Gdi = 0, Direct2D = 1, Auto = 2 };

// "best-graphics" and "maximum-performance" by their text; everything else is balanced.
UiPerformanceProfile profileFromText(const std::wstring& text);
const wchar_t* profileKey(UiPerformanceProfile profile);
const wchar_t* renderModeKey(RenderMode mode);

// Values outside the three profiles become balanced.
void setDefaultUiPerformanceProfile(int32_t value);
UiPerformanceProfile defaultUiPerformanceProfile();

// The profile in force: the window's own while a paint runs on this thread, else the default.
UiPerformanceProfile activeUiPerformanceProfile();

// Makes `profile` active on this thread for the life of the object; nests.
class ProfileScope {
 public:
  explicit ProfileScope(UiPerformanceProfile profile);
  ~ProfileScope();
  ProfileScope(const ProfileScope&) = delete;
  ProfileScope& operator=(const ProfileScope&) = delete;

 private:
  UiPerformanceProfile previous_;
};

// Area gates of the expensive layers, under a given profile or the active one.
bool allowsGlow(const Rect& rect, UiPerformanceProfile profile);
bool allowsGradient(const Rect& rect, UiPerformanceProfile profile);
bool allowsMaterial(const Rect& rect, UiPerformanceProfile profile);
bool allowsNoise(const Rect& rect, UiPerformanceProfile profile);
// The one material that stays on under every profile, up to a larger area when balanced.
bool allowsLuminousGlass(const Rect& rect, UiPerformanceProfile profile);
inline bool allowsGlow(const Rect& r) {
  return allowsGlow(r, activeUiPerformanceProfile());
}
inline bool allowsGradient(const Rect& r) {
  return allowsGradient(r, activeUiPerformanceProfile());
}
inline bool allowsMaterial(const Rect& r) {
  return allowsMaterial(r, activeUiPerformanceProfile());
}
inline bool allowsNoise(const Rect& r) {
  return allowsNoise(r, activeUiPerformanceProfile());
}

// What a window reports after a paint.
struct RenderDiagnostics {
  RenderMode requested = RenderMode::Auto;
  RenderMode effective = RenderMode::Gdi;
  bool direct2dActive = false;
  UiPerformanceProfile profile = UiPerformanceProfile::Balanced;
  uint32_t nativeSurfaces = 0;
  uint32_t nativeShaders = 0;
  uint32_t hlslEffects = 0;
};
std::wstring renderDiagnosticsLine(const RenderDiagnostics& diagnostics);

}  // namespace tessel
