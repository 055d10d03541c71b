#include "tessel/controls/themed_panel.h"

#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/skin/style_sheet.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

PanelStyle Plain(ShapeKind shape) {
  PanelStyle style;
  style.surface.shape = shape;
  style.surface.fill = rgbColor(30, 60, 90);
  style.surface.drawBorder = false;
  style.padding = 10;
  return style;
}

TEST(ThemedPanel, PaintsItsSurfaceUnderItsChildren) {
  ThemedPanel panel(L"body", Rect{5, 5, 60, 40}, Plain(ShapeKind::Rectangle));
  Box* child = panel.add<Box>(L"child", Rect{20, 15, 10, 10}, rgbColor(200, 10, 10));
  panel.layoutChildren();
  Image image = Image::blank(80, 60);
  ImageCanvas canvas(image);
  panel.paint(canvas, Point{});
  EXPECT_EQ(PixelAt(image, 8, 8), rgbColor(30, 60, 90));
  EXPECT_EQ(PixelAt(image, 5 + child->bounds().x + 2, 5 + child->bounds().y + 2),
            rgbColor(200, 10, 10));
  EXPECT_EQ(image.alphaAt(2, 2), 0);
}

TEST(ThemedPanel, ContentIsTheUsableAreaLessThePadding) {
  PanelStyle style = Plain(ShapeKind::Rectangle);
  style.surface.childLayoutInsets = Insets{4, 6, 4, 6};
  ThemedPanel panel(L"body", Rect{0, 0, 200, 100}, style);
  EXPECT_EQ(panel.contentBounds(), (Rect{14, 16, 172, 68}));
  ASSERT_EQ(panel.contentRegions().size(), 1u);
  EXPECT_EQ(panel.contentRegions()[0], (Rect{14, 16, 172, 68}));
  panel.setPadding(0);
  EXPECT_EQ(panel.contentBounds(), (Rect{4, 6, 192, 88}));
  // Without a surface it is a plain panel.
  panel.setHasSurface(false);
  EXPECT_EQ(panel.contentBounds(), (Rect{0, 0, 200, 100}));
  EXPECT_FALSE(panel.surfaceStyle().has_value());
}

TEST(ThemedPanel, ShapedContentStaysInsideTheOutline) {
  for (ShapeKind shape : {ShapeKind::Diamond, ShapeKind::Hexagon, ShapeKind::Capsule}) {
    ThemedPanel panel(L"body", Rect{0, 0, 120, 80}, Plain(shape));
    const std::vector<Rect> regions = panel.contentRegions();
    ASSERT_FALSE(regions.empty()) << int(shape);
    for (const Rect& r : regions) {
      EXPECT_FALSE(r.empty());
      for (int32_t y = r.y; y < r.bottom(); ++y)
        for (int32_t x = r.x; x < r.right(); ++x)
          ASSERT_TRUE(isInsideShape(shape, 120, 80, x, y)) << int(shape) << " " << x << "," << y;
    }
  }
}

TEST(ThemedPanel, ThePointerPassesOutsideTheOutline) {
  ThemedPanel panel(L"body", Rect{0, 0, 120, 80}, Plain(ShapeKind::Octagon));
  EXPECT_TRUE(panel.containsPoint(Point{60, 40}));
  EXPECT_FALSE(panel.containsPoint(Point{1, 1}));  // the cut corner
  panel.setHasSurface(false);
  EXPECT_TRUE(panel.containsPoint(Point{1, 1}));
}

TEST(ThemedPanel, ASkinSwapsTheRecordOnlyWhenItHoldsTheId) {
  Theme theme;
  StyleSheet sheet(theme);
  ThemedPanel panel(L"body", Rect{0, 0, 100, 60}, Plain(ShapeKind::Rectangle));
  panel.setStyleId(L"no-such-panel");
  EXPECT_FALSE(panel.applySkin(sheet));
  EXPECT_EQ(panel.style().surface.fill, rgbColor(30, 60, 90));
  panel.setStyleId(L"default");
  EXPECT_TRUE(panel.applySkin(sheet));
  EXPECT_EQ(panel.style().surface.fill, sheet.panels.get(L"default").surface.fill);
}

}  // namespace
}  // namespace tessel
