#include "tessel/controls/themed_panel.h"

#include <gtest/gtest.h>

#include "tessel/paint/shape_geometry.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

PanelStyle Plain(ShapeKind shape) {
  PanelStyle style;
  style.surface.shape = shape;
  style.padding = 10;
  return style;
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

}  // namespace
}  // namespace tessel
