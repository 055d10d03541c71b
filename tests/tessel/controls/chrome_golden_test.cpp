// A title bar over a themed panel, painted with the application's own skin, against a reviewed
// PNG. Regenerate after a deliberate change (and look at it):
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/stayhold_tests --gtest_filter='ChromeGolden.*'
#include <gtest/gtest.h>

#include "tessel/controls/chrome_title_bar.h"
#include "tessel/controls/themed_panel.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"
#include "tests/support/golden_image.h"
#include "tests/support/shipped_skins.h"

namespace tessel {
namespace {

TEST(ChromeGolden, TitleBarOverAThemedPanel) {
  clearPaintCaches();
  const SkinDefinition* skin = ShippedSkin(L"stayhold-tactical-3d");
  ASSERT_NE(skin, nullptr);
  const StyleSheet sheet(*skin);
  Image image = Image::blank(360, 150);
  ImageCanvas canvas(image);
  canvas.fillRect(Rect{0, 0, 360, 150}, skin->theme.frame);
  drawSurface(canvas, Rect{0, 0, 360, 150}, sheet.window().surface,
              UiPerformanceProfile::BestGraphics);
  ChromeTitleBar bar(L"bar", Rect{0, 0, 360, 34}, L"STAYHOLD SETTINGS",
                     sheet.chromeTitleBars.get(L"stayhold-chrome"));
  bar.setShowResetSize(true);
  bar.setHeaderAction(0, {}, L"Pin", nullptr);
  ThemedPanel body(L"body", Rect{10, 44, 340, 96}, sheet.panels.get(L"default"));
  {
    const ProfileScope scope(UiPerformanceProfile::BestGraphics);
    body.paint(canvas, Point{});
    bar.paint(canvas, Point{});
  }
  EXPECT_TRUE(MatchesGoldenPng(image, "tests/tessel/controls/golden/title_bar_and_panel.png", 1));
}

}  // namespace
}  // namespace tessel
