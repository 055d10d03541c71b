#include "tessel/paint/ui_performance.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

using P = UiPerformanceProfile;

// The thresholds of each gate are tested with the layers they guard (material_shading_test,
// surface_painter_test); here what no layer shows.
TEST(UiPerformanceGates, NegativeSizesCountAsEmptyAndMaximumPerformanceShutsAll) {
  EXPECT_TRUE(allowsNoise({0, 0, -900, -900}, P::Balanced));  // not 810,000
  EXPECT_FALSE(allowsGradient({0, 0, 1, 1}, P::MaximumPerformance));
  EXPECT_TRUE(allowsLuminousGlass({0, 0, 3000, 3000}, P::MaximumPerformance));
}

TEST(UiPerformance, ProfileTextsDefaultAndNestedScopes) {
  EXPECT_EQ(profileFromText(L"best-graphics"), P::BestGraphics);
  EXPECT_EQ(profileFromText(L"maximum-performance"), P::MaximumPerformance);
  EXPECT_EQ(profileFromText(L"BEST-GRAPHICS"), P::Balanced);  // the stored text is normalized
  setDefaultUiPerformanceProfile(3);
  EXPECT_EQ(defaultUiPerformanceProfile(), P::Balanced);
  setDefaultUiPerformanceProfile(2);
  EXPECT_EQ(activeUiPerformanceProfile(), P::MaximumPerformance);
  {
    ProfileScope paint(P::BestGraphics);
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
  d.requested = RenderMode::Direct2D;
  d.effective = RenderMode::Gdi;
  d.profile = P::MaximumPerformance;
  d.direct2dActive = true;
  d.nativeShaders = 3;
  d.hlslEffects = 12;
  EXPECT_EQ(renderDiagnosticsLine(d),
            L"tessel render diagnostics: requested=direct2d effective=gdi direct2d_active=1 "
            L"profile=maximum-performance d2d_native_surfaces=0 d2d_native_shaders=3 "
            L"d2d_hlsl_effects=12");
}

}  // namespace
}  // namespace tessel
