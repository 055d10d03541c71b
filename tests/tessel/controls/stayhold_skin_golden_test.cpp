// Chrome painted with the application's own skin against reviewed PNG files: a title bar over a
// themed panel, and a notice. Regenerate after a deliberate change (and look at them):
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/tessel_tests --gtest_filter='StayholdSkin*'
#include <gtest/gtest.h>

#include "tessel/controls/chrome_title_bar.h"
#include "tessel/controls/designed_popup.h"
#include "tessel/controls/themed_panel.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"
#include "tests/support/golden_image.h"
#include "tests/support/shipped_skins.h"

namespace tessel {
namespace {

class StayholdSkinGolden : public ::testing::Test {
 protected:
  void SetUp() override {
    clearPaintCaches();
    ASSERT_NE(skin, nullptr);
  }
  // Controls painted at their best over the skin's frame colour, and the window's surface.
  Image Paint(Size size, bool windowSurface, std::initializer_list<Control*> controls) {
    Image image = Image::blank(size.width, size.height);
    ImageCanvas canvas(image);
    canvas.fillRect(Rect{0, 0, size.width, size.height}, skin->theme.frame);
    const ProfileScope scope(UiPerformanceProfile::BestGraphics);
    if (windowSurface)
      drawSurface(canvas, Rect{0, 0, size.width, size.height}, sheet.window().surface);
    for (Control* control : controls)
      control->paint(canvas, Point{});
    return image;
  }
  const SkinDefinition* skin = ShippedSkin(L"stayhold-tactical-3d");
  const StyleSheet sheet{*skin};
};

TEST_F(StayholdSkinGolden, TitleBarOverAThemedPanel) {
  ChromeTitleBar bar(L"bar", Rect{0, 0, 360, 34}, L"STAYHOLD SETTINGS",
                     sheet.chromeTitleBars.get(L"stayhold-chrome"));
  bar.setShowResetSize(true);
  bar.setHeaderAction(0, {}, L"Pin", nullptr);
  ThemedPanel body(L"body", Rect{10, 44, 340, 96}, sheet.panels.get(L"default"));
  EXPECT_TRUE(MatchesGoldenPng(Paint({360, 150}, true, {&body, &bar}),
                               "tests/tessel/controls/golden/title_bar_and_panel.png", 1));
}

TEST_F(StayholdSkinGolden, NoticeWithIconMessageAndTwoActions) {
  DesignedPopup popup(L"notice", Rect{10, 8, 360, 196}, PopupStyle{});
  ASSERT_TRUE(applyStyleId(sheet, popup, L"stayhold-notice"));
  popup.setTitle(L"KEEP AWAKE");
  popup.setIconGlyph(L"i");
  popup.setMessage(L"Stayhold keeps this computer awake until the guard ends.\n\nClose it now?");
  for (const wchar_t* id : {L"stay", L"quit"}) {
    PopupAction action;
    action.id = id;
    action.text = id == std::wstring(L"stay") ? L"Stay" : L"Quit";
    action.primary = action.text == L"Quit";
    popup.addAction(action);
  }
  popup.show();
  EXPECT_TRUE(MatchesGoldenPng(Paint({380, 220}, false, {&popup}),
                               "tests/tessel/controls/golden/designed_popup_notice.png", 1));
}

}  // namespace
}  // namespace tessel
