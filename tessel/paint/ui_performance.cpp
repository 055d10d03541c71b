#include "tessel/paint/ui_performance.h"

#include <algorithm>

#include "base/wide_text.h"

namespace tessel {

namespace {

UiPerformanceProfile processDefault = UiPerformanceProfile::Balanced;

struct PaintState {
  int32_t nesting = 0;
  UiPerformanceProfile active = UiPerformanceProfile::Balanced;
};
thread_local PaintState paintState;

int64_t area(const Rect& rect) {
  return int64_t(std::max(rect.width, 0)) * int64_t(std::max(rect.height, 0));
}

bool gate(const Rect& rect, UiPerformanceProfile profile, int64_t balancedBelow) {
  switch (profile) {
    case UiPerformanceProfile::BestGraphics:
      return true;
    case UiPerformanceProfile::Balanced:
      return area(rect) < balancedBelow;
    default:
      return false;
  }
}

}  // namespace

UiPerformanceProfile profileFromText(const std::wstring& text) {
  if (text == L"best-graphics") return UiPerformanceProfile::BestGraphics;
  if (text == L"maximum-performance") return UiPerformanceProfile::MaximumPerformance;
  return UiPerformanceProfile::Balanced;
}

const wchar_t* profileKey(UiPerformanceProfile profile) {
  switch (profile) {
    case UiPerformanceProfile::BestGraphics:
      return L"best-graphics";
    case UiPerformanceProfile::MaximumPerformance:
      return L"maximum-performance";
    default:
      return L"balanced";
  }
}

const wchar_t* renderModeKey(RenderMode mode) {
  switch (mode) {
    case RenderMode::Gdi:
      return L"gdi";
    case RenderMode::Direct2D:
      return L"direct2d";
    default:
      return L"auto";
  }
}

void setDefaultUiPerformanceProfile(int32_t value) {
  processDefault = value >= 0 && value <= 2 ? static_cast<UiPerformanceProfile>(value)
                                            : UiPerformanceProfile::Balanced;
}

UiPerformanceProfile defaultUiPerformanceProfile() {
  return processDefault;
}

UiPerformanceProfile activeUiPerformanceProfile() {
  return paintState.nesting > 0 ? paintState.active : processDefault;
}

ProfileScope::ProfileScope(UiPerformanceProfile profile) : previous_(paintState.active) {
  ++paintState.nesting;
  paintState.active = profile;
}

ProfileScope::~ProfileScope() {
  paintState.active = previous_;
  --paintState.nesting;
}

bool allowsGlow(const Rect& rect, UiPerformanceProfile profile) {
  return gate(rect, profile, 220001);
}
bool allowsGradient(const Rect& rect, UiPerformanceProfile profile) {
  return gate(rect, profile, 360001);
}
bool allowsMaterial(const Rect& rect, UiPerformanceProfile profile) {
  return gate(rect, profile, 180001);
}
bool allowsNoise(const Rect& rect, UiPerformanceProfile profile) {
  return gate(rect, profile, 90001);
}
bool allowsLuminousGlass(const Rect& rect, UiPerformanceProfile profile) {
  return profile == UiPerformanceProfile::MaximumPerformance || gate(rect, profile, 360001);
}

std::wstring renderDiagnosticsLine(const RenderDiagnostics& d) {
  return std::wstring(L"tessel render diagnostics: requested=") + renderModeKey(d.requested) +
         L" effective=" + renderModeKey(d.effective) + L" direct2d_active=" +
         (d.direct2dActive ? L"1" : L"0") + L" profile=" + profileKey(d.profile) +
         L" d2d_native_surfaces=" + DecimalText(d.nativeSurfaces) + L" d2d_native_shaders=" +
         DecimalText(d.nativeShaders) + L" d2d_hlsl_effects=" + DecimalText(d.hlslEffects);
}

}  // namespace tessel
