#include "tessel/controls/themed_panel.h"

#include <algorithm>
#include <utility>

#include "tessel/controls/surface_bands.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_outline.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {

ThemedPanel::ThemedPanel(std::wstring id, Rect bounds, const Theme& theme, PanelTone tone,
                         SurfaceMode mode)
    : ThemedPanel(std::move(id), bounds, buildPanelStyle(theme, mode, tone)) {}

ThemedPanel::ThemedPanel(std::wstring id, Rect bounds, PanelStyle style)
    : Panel(std::move(id), bounds), style_(std::move(style)), padding_(style_.padding) {}

void ThemedPanel::setStyle(const PanelStyle& style) {
  style_ = style;
  padding_ = style.padding;
  layoutChildren();
  invalidate(8);
}

void ThemedPanel::setPadding(int32_t padding) {
  if (padding == padding_) return;
  padding_ = padding;
  layoutChildren();
  invalidate(8);
}

void ThemedPanel::setHasSurface(bool hasSurface) {
  if (hasSurface == hasSurface_) return;
  hasSurface_ = hasSurface;
  layoutChildren();
  invalidate(8);
}

bool ThemedPanel::applySkin(const StyleSheet& sheet) {
  const PanelStyle* found = sheet.panels.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

std::vector<Rect> ThemedPanel::contentRegions() const {
  if (!hasSurface_) return Panel::contentRegions();
  // The padding comes off the area's top and bottom once and off each band's sides, so that
  // bands a few rows high survive it.
  const Rect rect{0, 0, std::max(bounds().width, 0), std::max(bounds().height, 0)};
  const Rect area = applyInsets(applyInsets(rect, style_.surface.childLayoutInsets),
                                Insets{0, padding_, 0, padding_});
  std::vector<Rect> regions;
  for (const Rect& band : surfaceBands(style_.surface, rect, area)) {
    const Rect inner = applyInsets(band, Insets{padding_, 0, padding_, 0});
    if (!inner.empty()) regions.push_back(inner);
  }
  return regions;
}

Rect ThemedPanel::contentBounds() const {
  if (!hasSurface_) return Panel::contentBounds();
  Rect usable;
  for (const Rect& region : contentRegions())
    usable = uniteRects(usable, region);
  return usable;
}

std::optional<SurfaceStyle> ThemedPanel::surfaceStyle() const {
  if (!hasSurface_) return std::nullopt;
  return style_.surface;
}

void ThemedPanel::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (hasSurface_ && !rect.empty()) drawSurface(canvas, rect, style_.surface);
  Panel::paint(canvas, origin);
}

bool ThemedPanel::containsPoint(Point local) const {
  if (!hasSurface_) return Panel::containsPoint(local);
  return hitTestSurface(style_.surface, Size{bounds().width, bounds().height}, local);
}

}  // namespace tessel
