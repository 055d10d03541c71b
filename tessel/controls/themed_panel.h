// The skinned panel most dialog bodies use: it paints its surface, takes the pointer only inside
// the surface's outline, and lays children out in the outline's usable area (the child-layout
// role) less its padding. Without a surface it is a plain panel.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tessel/core/panel.h"
#include "tessel/skin/style_builders.h"
#include "tessel/style/panel_style.h"

namespace tessel {

class ThemedPanel : public Panel {
 public:
  ThemedPanel(std::wstring id, Rect bounds, const Theme& theme, PanelTone tone = PanelTone::Default,
              SurfaceMode mode = SurfaceMode::Sculpted3d);
  ThemedPanel(std::wstring id, Rect bounds, PanelStyle style);

  // Replaces the record (and its padding) and lays the children out again.
  void setStyle(const PanelStyle& style);
  void setPadding(int32_t padding);
  void setHasSurface(bool hasSurface);
  const PanelStyle& style() const { return style_; }
  int32_t padding() const { return padding_; }
  bool hasSurface() const { return hasSurface_; }

  bool applySkin(const StyleSheet& sheet) override;
  Rect contentBounds() const override;
  std::vector<Rect> contentRegions() const override;
  std::optional<SurfaceStyle> surfaceStyle() const override;
  void paint(Canvas& canvas, Point origin) override;
  bool containsPoint(Point local) const override;

 private:
  PanelStyle style_;
  int32_t padding_ = 12;
  bool hasSurface_ = true;
};

}  // namespace tessel
