// A notice painted with the application's own skin, against a reviewed PNG. Regenerate after a
// deliberate change (and look at it):
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/stayhold_tests
//     --gtest_filter='DesignedPopupGolden.*'   (one command line)
#include <gtest/gtest.h>

#include <vector>

#include "tessel/controls/designed_popup.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"
#include "tests/support/golden_image.h"
#include "tests/support/shipped_skins.h"

namespace tessel {
namespace {

TEST(DesignedPopupGolden, NoticeWithIconMessageAndTwoActions) {
  clearPaintCaches();
  const SkinDefinition* skin = ShippedSkin(L"stayhold-tactical-3d");
  ASSERT_NE(skin, nullptr);
  const StyleSheet sheet(*skin);
  Image image = Image::blank(380, 220);
  ImageCanvas canvas(image);
  canvas.fillRect(Rect{0, 0, 380, 220}, skin->theme.frame);
  DesignedPopup popup(L"notice", Rect{10, 8, 360, 196}, PopupStyle{});
  popup.setStyleId(L"stayhold-notice");
  ASSERT_TRUE(popup.applySkin(sheet));
  popup.setTitle(L"KEEP AWAKE");
  popup.setIconGlyph(L"i");
  popup.setMessage(L"Stayhold keeps this computer awake until the guard ends.\n\nClose it now?");
  PopupAction stay;
  stay.id = L"stay";
  stay.text = L"Stay";
  popup.addAction(stay);
  PopupAction quit;
  quit.id = L"quit";
  quit.text = L"Quit";
  quit.primary = true;
  popup.addAction(quit);
  popup.show();
  {
    const ProfileScope scope(UiPerformanceProfile::BestGraphics);
    popup.paint(canvas, Point{});
  }
  EXPECT_TRUE(MatchesGoldenPng(image, "tests/tessel/controls/golden/designed_popup_notice.png", 1));
}

}  // namespace
}  // namespace tessel
