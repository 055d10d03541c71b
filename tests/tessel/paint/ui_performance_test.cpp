#include "tessel/paint/ui_performance.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

using P = UiPerformanceProfile;

struct GateCase {
  const char* what;
  bool (*gate)(const Rect&, UiPerformanceProfile);
  Rect rect;
  P profile;
  bool allowed;
};

const GateCase kGateCases[] = {
    {"material 600x300 balanced", allowsMaterial, {0, 0, 600, 300}, P::Balanced, true},
    {"material 601x300 balanced", allowsMaterial, {0, 0, 601, 300}, P::Balanced, false},
    {"noise 300x300 balanced", allowsNoise, {0, 0, 300, 300}, P::Balanced, true},
    {"noise 301x300 balanced", allowsNoise, {0, 0, 301, 300}, P::Balanced, false},
    {"glow 220000 balanced", allowsGlow, {0, 0, 1000, 220}, P::Balanced, true},
    {"glow 220001 balanced", allowsGlow, {0, 0, 220001, 1}, P::Balanced, false},
    {"gradient 360000 balanced", allowsGradient, {0, 0, 600, 600}, P::Balanced, true},
    {"gradient 360600 balanced", allowsGradient, {0, 0, 601, 600}, P::Balanced, false},
    {"anything under best graphics", allowsNoise, {0, 0, 5000, 5000}, P::BestGraphics, true},
    {"nothing under maximum performance",
     allowsGradient,
     {0, 0, 1, 1},
     P::MaximumPerformance,
     false},
    {"negative sizes count as empty", allowsNoise, {0, 0, -900, 900}, P::Balanced, true},
    {"luminous glass balanced to 360000", allowsLuminousGlass, {0, 0, 600, 600}, P::Balanced, true},
    {"luminous glass balanced beyond", allowsLuminousGlass, {0, 0, 601, 600}, P::Balanced, false},
    {"luminous glass under maximum performance",
     allowsLuminousGlass,
     {0, 0, 3000, 3000},
     P::MaximumPerformance,
     true},
};

TEST(UiPerformanceGates, ThresholdsAndExceptions) {
  for (const GateCase& c : kGateCases)
    EXPECT_EQ(c.gate(c.rect, c.profile), c.allowed) << c.what;
}

TEST(UiPerformance, ProfileTextsAndDefault) {
  EXPECT_EQ(profileFromText(L"best-graphics"), P::BestGraphics);
  EXPECT_EQ(profileFromText(L"maximum-performance"), P::MaximumPerformance);
  EXPECT_EQ(profileFromText(L"turbo"), P::Balanced);
  EXPECT_EQ(profileFromText(L"BEST-GRAPHICS"), P::Balanced);  // the stored text is normalized
  setDefaultUiPerformanceProfile(7);
  EXPECT_EQ(defaultUiPerformanceProfile(), P::Balanced);
  setDefaultUiPerformanceProfile(2);
  EXPECT_EQ(activeUiPerformanceProfile(), P::MaximumPerformance);
  {
    ProfileScope paint(P::BestGraphics);
    EXPECT_EQ(activeUiPerformanceProfile(), P::BestGraphics);
    {
      ProfileScope drag(P::MaximumPerformance);
      EXPECT_EQ(activeUiPerformanceProfile(), P::MaximumPerformance);
    }
    EXPECT_EQ(activeUiPerformanceProfile(), P::BestGraphics);
  }
  EXPECT_EQ(activeUiPerformanceProfile(), P::MaximumPerformance);
  setDefaultUiPerformanceProfile(1);
}

TEST(UiPerformance, DiagnosticsLine) {
  RenderDiagnostics d;
  d.requested = RenderMode::Auto;
  d.effective = RenderMode::Gdi;
  d.profile = P::MaximumPerformance;
  d.nativeShaders = 3;
  EXPECT_EQ(renderDiagnosticsLine(d),
            L"tessel render diagnostics: requested=auto effective=gdi direct2d_active=0 "
            L"profile=maximum-performance d2d_native_surfaces=0 d2d_native_shaders=3 "
            L"d2d_hlsl_effects=0");
}

}  // namespace
}  // namespace tessel
