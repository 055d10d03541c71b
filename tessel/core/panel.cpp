#include "tessel/core/panel.h"

#include <algorithm>
#include <cmath>

#include "tessel/style/rect_extents.h"
#include "tessel/core/window_host.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/paint/shape_geometry.h"

namespace tessel {

namespace {

// offset + round(size * clamp(ratio, -1, 2)), halves away from zero.
int32_t edgeValue(const PlacementEdge& edge, int32_t size) {
  const double ratio = std::clamp(edge.ratio, -1.0, 2.0);
  return edge.offset + static_cast<int32_t>(std::round(size * ratio));
}

enum class Bound { None, Far, Center };

// One direction of a relative placement; false when no case applies.
bool place(const PlacementEdge& nearEdge, const PlacementEdge& farEdge, const PlacementEdge& center,
           const PlacementSize& size, int32_t parentSize, int32_t& position, int32_t& length,
           Bound& bound) {
  const int32_t fixed = std::max(size.value, 0);
  if (nearEdge.set && farEdge.set) {
    const int32_t a = edgeValue(nearEdge, parentSize);
    const int32_t b = edgeValue(farEdge, parentSize);
    position = std::min(a, b);
    length = std::max(a, b) - position;
  } else if (nearEdge.set && size.set) {
    position = edgeValue(nearEdge, parentSize);
    length = fixed;
  } else if (farEdge.set && size.set) {
    length = fixed;
    position = edgeValue(farEdge, parentSize) - length;
    bound = Bound::Far;
  } else if (center.set && size.set) {
    length = fixed;
    position = edgeValue(center, parentSize) - length / 2;
    bound = Bound::Center;
  } else if (nearEdge.set) {
    position = edgeValue(nearEdge, parentSize);
    length = std::max(length, 0);
  } else if (farEdge.set) {
    position = edgeValue(farEdge, parentSize) - length;
    bound = Bound::Far;
  } else if (center.set) {
    position = edgeValue(center, parentSize) - length / 2;
    bound = Bound::Center;
  } else if (size.set) {
    length = fixed;
  } else {
    return false;
  }
  return true;
}

// Anchors of one direction, when not placed: the far anchor keeps the designed margin.
void anchor(bool nearAnchor, bool farAnchor, int32_t designParent, int32_t designPosition,
            int32_t designLength, int32_t parentSize, int32_t& position, int32_t& length,
            Bound& bound) {
  if (!farAnchor) return;
  const int32_t margin = designParent - designLength - designPosition;
  if (nearAnchor) {
    length = parentSize - position - margin;
  } else {
    position = parentSize - length - margin;
    bound = Bound::Far;
  }
}

void holdMinimum(int32_t minimum, Bound bound, int32_t& position, int32_t& length) {
  if (length >= minimum) return;
  if (bound == Bound::Far) position += length - minimum;
  if (bound == Bound::Center) position += (length - minimum) / 2;
  length = minimum;
}

// Runs of equal cut, as bands relative to the child.
std::vector<GeometryBand> bandsOf(const std::vector<Extent>& cuts, int32_t low, int32_t high) {
  std::vector<GeometryBand> bands;
  for (size_t i = 0; i < cuts.size(); ++i) {
    if (!cuts[i].any) continue;
    const int32_t nearCut = std::max(0, cuts[i].low - low);
    const int32_t farCut = std::max(0, high - cuts[i].high);
    if (!bands.empty()) {
      GeometryBand& last = bands.back();
      if (last.start + last.length == static_cast<int32_t>(i) && last.nearCut == nearCut &&
          last.farCut == farCut) {
        ++last.length;
        continue;
      }
    }
    bands.push_back(GeometryBand{static_cast<int32_t>(i), 1, nearCut, farCut});
  }
  return bands;
}

// Paints `paintInto` into a buffer of R and copies it back squeezed into the spans' extents.
template <typename Paint>
void deformPaint(Canvas& canvas, const Rect& r, const std::vector<Rect>& spans, Paint paintInto) {
  if (r.empty() || spans.empty()) return;
  const std::vector<Extent> rows = rectExtents(r, spans, true);
  const std::vector<Extent> columns = rectExtents(r, spans, false);
  if (std::none_of(rows.begin(), rows.end(), [](const Extent& e) { return e.any; })) {
    paintInto(canvas, Point{0, 0});
    return;
  }
  int64_t cutW = 0, cutH = 0;
  for (const Extent& e : rows)
    cutW += std::max(0, r.width - (e.any ? e.high - e.low : 0));
  for (const Extent& e : columns)
    cutH += std::max(0, r.height - (e.any ? e.high - e.low : 0));
  Image buffer = canvas.copyPixels(r);
  if (buffer.empty()) {
    paintInto(canvas, Point{0, 0});
    return;
  }
  {
    ImageCanvas offscreen(buffer);
    paintInto(offscreen, Point{-r.x, -r.y});
  }
  if (cutH <= cutW) {
    for (int32_t row = 0; row < r.height; ++row) {
      const Extent& e = rows[row];
      if (!e.any) continue;
      const int32_t width = std::min(e.high - e.low, r.width);
      // The source comes from the side that is cut less.
      const int32_t source = (e.low - r.x) <= (r.right() - e.high) ? 0 : r.width - width;
      canvas.putPixels(buffer, Rect{source, row, width, 1}, Point{e.low, r.y + row});
    }
  } else {
    for (int32_t column = 0; column < r.width; ++column) {
      const Extent& e = columns[column];
      if (!e.any) continue;
      const int32_t height = std::min(e.high - e.low, r.height);
      const int32_t source = (e.low - r.y) <= (r.bottom() - e.high) ? 0 : r.height - height;
      canvas.putPixels(buffer, Rect{column, source, 1, height}, Point{r.x + column, e.low});
    }
  }
}

}  // namespace

void applyLayout(Control& child, Rect p) {
  if (p.width <= 0 || p.height <= 0) return;
  Control& c = child;
  if (!c.designCaptured_ || c.designParentSize_.width <= 0 || c.designParentSize_.height <= 0) {
    c.designBounds_ = c.bounds_;
    c.designCaptured_ = true;
    c.designParentSize_ = Size{std::max(p.width, c.designBounds_.x + c.designBounds_.width),
                               std::max(p.height, c.designBounds_.y + c.designBounds_.height)};
  }
  const Rect& d = c.designBounds_;
  int32_t x = d.x, y = d.y, w = d.width, h = d.height;
  Bound horizontal = Bound::None, vertical = Bound::None;
  bool placedX = false, placedY = false;
  if (c.placement_.enabled) {
    const RelativePlacement& rp = c.placement_;
    placedX = place(rp.left, rp.right, rp.centerX, rp.width, p.width, x, w, horizontal);
    placedY = place(rp.top, rp.bottom, rp.centerY, rp.height, p.height, y, h, vertical);
  }
  if (!placedX) {
    anchor(c.anchors_ & kAnchorLeft, c.anchors_ & kAnchorRight, c.designParentSize_.width, d.x,
           d.width, p.width, x, w, horizontal);
  }
  if (!placedY) {
    anchor(c.anchors_ & kAnchorTop, c.anchors_ & kAnchorBottom, c.designParentSize_.height, d.y,
           d.height, p.height, y, h, vertical);
  }
  const Size minimum = c.minimumSize();
  holdMinimum(minimum.width, horizontal, x, w);
  holdMinimum(minimum.height, vertical, y, h);
  const Rect result{p.x + x, p.y + y, std::max(w, 0), std::max(h, 0)};
  if (result == c.bounds_) return;
  // Layout moves the control without changing its design; the initiator repaints.
  c.bounds_ = result;
  c.layoutChildren();
  c.layoutAttachedChildren();
  c.updateWindowRegion();
}

void fitToRegions(Control& child, const std::vector<Rect>& regions, Rect) {
  Control& c = child;
  if (c.geometryMode_ == kGeometryNone || regions.empty()) {
    c.clearGeometry();
    return;
  }
  const Rect box = c.bounds_;
  const std::vector<Rect> previous = c.contourSpans_;
  std::vector<Extent> rows = rectExtents(box, regions, true);
  std::vector<Rect> spans;
  for (int32_t row = 0; row < box.height; ++row) {
    const Extent& e = rows[row];
    if (!e.any) continue;
    const int32_t left = std::max(e.low, box.x);
    const int32_t right = std::min(e.high, box.right());
    if (left >= right) continue;
    const Rect span{left - box.x, row, right - left, 1};
    if (!spans.empty() && spans.back().x == span.x && spans.back().width == span.width &&
        spans.back().bottom() == row) {
      ++spans.back().height;
    } else {
      spans.push_back(span);
    }
  }
  // In band mode a child that doesn't fit keeps its shape and moves sideways to the nearest
  // place where every one of its rows is usable; when there is none it stays.
  Point shift;
  if (c.geometryMode_ == kGeometryFollow && c.followMode_ == kFollowBand) {
    int32_t low = INT32_MIN, high = INT32_MAX;
    bool usable = box.height > 0;
    for (const Extent& e : rows) {
      if (!e.any) usable = false;
      low = std::max(low, e.low);
      high = std::min(high, e.high);
    }
    if (usable && high - low >= box.width) {
      if (box.x < low) shift.x = low - box.x;
      if (box.right() > high) shift.x = high - box.right();
    }
  }
  const bool plain = spans.size() == 1 && spans[0] == Rect{0, 0, box.width, box.height} &&
                     shift.x == 0 && shift.y == 0;
  c.rowBands_.clear();
  c.columnBands_.clear();
  c.bandsFromBottom_ = false;
  c.bandsFromRight_ = false;
  c.followOffset_ = Point{};
  c.followBounds_ = Rect{};
  if (plain) {
    c.clearGeometry();
    return;
  }
  c.contourSpans_ = spans;
  c.rowBands_ = bandsOf(rows, box.x, box.right());
  c.columnBands_ = bandsOf(rectExtents(box, regions, false), box.y, box.bottom());
  c.bandsFromRight_ = (c.anchors_ & kAnchorRight) && !(c.anchors_ & kAnchorLeft);
  c.bandsFromBottom_ = (c.anchors_ & kAnchorBottom) && !(c.anchors_ & kAnchorTop);
  if (shift.x != 0 || shift.y != 0) {
    c.followOffset_ = shift;
    c.followBounds_ = Rect{box.x + shift.x, box.y + shift.y, box.width, box.height};
  }
  if (c.contourSpans_ != previous) c.layoutChildren();
}

Size minimumParentSizeHint(const Control& child) {
  if (child.collapsed_) return Size{};
  const Rect d = child.designCaptured_ ? child.designBounds_ : child.bounds_;
  const Size parent = child.designCaptured_ ? child.designParentSize_ : Size{};
  const Size m = child.minimumSize();
  const int32_t rm = parent.width > 0 ? std::max(0, parent.width - d.width - d.x) : 0;
  const int32_t bm = parent.height > 0 ? std::max(0, parent.height - d.height - d.y) : 0;
  int32_t width = m.width + d.x;
  if (child.anchors_ & kAnchorRight) {
    width = m.width + rm + ((child.anchors_ & kAnchorLeft) ? d.x : 0);
  }
  int32_t height = m.height + d.y;
  if (child.anchors_ & kAnchorBottom) {
    height = m.height + bm + ((child.anchors_ & kAnchorTop) ? d.y : 0);
  }
  return Size{std::max({width, m.width + d.x, 0}), std::max({height, m.height + d.y, 0})};
}

void paintChild(Canvas& canvas, Control& child, Point origin, bool overlay) {
  const bool shaped = !child.contourSpans().empty() || child.hasFollowBounds();
  if (!shaped || child.geometryMode() == kGeometryNone) {
    if (overlay) {
      child.paintOverlay(canvas, origin);
      child.paintAttachedOverlays(canvas, origin);
    } else {
      child.paint(canvas, origin);
      child.paintAttached(canvas, origin);
    }
    return;
  }
  // The geometry is taken away for the call, so the child paints as a plain rectangle.
  std::vector<Rect> spans = std::move(child.contourSpans_);
  std::vector<GeometryBand> rowBands = std::move(child.rowBands_);
  std::vector<GeometryBand> columnBands = std::move(child.columnBands_);
  const Point offset = child.followOffset_;
  const Rect follow = child.followBounds_;
  const Rect bounds = child.bounds_;
  child.contourSpans_.clear();
  child.rowBands_.clear();
  child.columnBands_.clear();
  child.followOffset_ = Point{};
  child.followBounds_ = Rect{};
  const auto paintPlain = [&](Canvas& target, Point at) {
    if (overlay) {
      child.paintOverlay(target, at);
      child.paintAttachedOverlays(target, at);
    } else {
      child.paint(target, at);
      child.paintAttached(target, at);
    }
  };
  if (child.geometryMode() == kGeometryFollow && child.followMode() == kFollowBand) {
    const bool move = !child.isContainer() && follow.width >= 1 && follow.height >= 1;
    if (move) child.bounds_ = follow;
    paintPlain(canvas, origin);
    child.bounds_ = bounds;
  } else if (overlay) {
    paintPlain(canvas, origin);
  } else {
    const Rect r{origin.x + bounds.x, origin.y + bounds.y, bounds.width, bounds.height};
    std::vector<Rect> absolute = spans;
    for (Rect& span : absolute) {
      span.x += r.x;
      span.y += r.y;
    }
    deformPaint(canvas, r, absolute, [&](Canvas& target, Point shift) {
      paintPlain(target, Point{origin.x + shift.x, origin.y + shift.y});
    });
  }
  child.contourSpans_ = std::move(spans);
  child.rowBands_ = std::move(rowBands);
  child.columnBands_ = std::move(columnBands);
  child.followOffset_ = offset;
  child.followBounds_ = follow;
}

Panel::Panel(std::wstring id, Rect bounds) : Control(std::move(id), bounds) {}

Control* Panel::addChild(std::unique_ptr<Control> child) {
  if (!child) return nullptr;
  Control* raw = child.get();
  raw->parent_ = this;
  children_.push_back(std::move(child));
  raw->attachToWindow(window_);
  markDrawOrderDirty();
  const Rect content = contentBounds();
  applyLayout(*raw, content);
  fitToRegions(*raw, contentRegions(), content);
  updateWindowRegion();
  return raw;
}

void Panel::captureStateTree(std::vector<ControlState>& states) const {
  // Depth first in list order; a control without an id isn't recorded but is descended into.
  const auto capture = [&](const auto& self, const Control& control) -> void {
    for (const auto& child : control.children()) {
      if (!child) continue;
      if (!child->id().empty()) {
        ControlState state;
        child->captureState(state);
        states.push_back(std::move(state));
      }
      self(self, *child);
    }
  };
  capture(capture, *this);
}

Size Panel::minimumContentSizeHint() const {
  Size hint;
  for (const auto& child : children_) {
    if (!child || !child->visible()) continue;
    const Size demand = minimumParentSizeHint(*child);
    hint.width = std::max(hint.width, demand.width);
    hint.height = std::max(hint.height, demand.height);
  }
  return hint;
}

const std::vector<Control*>& Panel::drawOrder() {
  if (panelDrawOrderDirty_) {
    panelDrawOrder_.clear();
    for (auto& child : children_)
      if (child && child->visible()) panelDrawOrder_.push_back(child.get());
    std::stable_sort(panelDrawOrder_.begin(), panelDrawOrder_.end(),
                     [](const Control* a, const Control* b) { return a->zOrder() < b->zOrder(); });
    panelDrawOrderDirty_ = false;
  }
  return panelDrawOrder_;
}

bool Panel::isContainer() const {
  return true;
}
const ControlList& Panel::children() const {
  return children_;
}

Size Panel::minimumSize() const {
  if (collapsed_) return Size{};
  const Size base = Control::minimumSize();
  const Size content = minimumContentSizeHint();
  return Size{std::max(base.width, content.width), std::max(base.height, content.height)};
}

void Panel::themeChanged() {
  Control::themeChanged();
  for (auto& child : children_)
    if (child) child->themeChanged();
}

void Panel::paint(Canvas& canvas, Point origin) {
  const Point o{origin.x + bounds_.x, origin.y + bounds_.y};
  CanvasState state(canvas);
  std::vector<Rect> regions = contentRegions();
  if (!regions.empty()) {
    for (Rect& region : regions) {
      region.x += o.x;
      region.y += o.y;
    }
    canvas.clipToRects(regions);
  }
  const Rect clip = canvas.clipBox();
  for (Control* child : drawOrder()) {
    if (intersectRects(child->visualRect(o, 16), clip).empty()) continue;
    paintChild(canvas, *child, o, false);
  }
}

void Panel::paintOverlay(Canvas& canvas, Point origin) {
  const Point o{origin.x + bounds_.x, origin.y + bounds_.y};
  for (Control* child : drawOrder())
    paintChild(canvas, *child, o, true);
}

Control* Panel::overlayHitTest(Point point, Point origin) {
  if (!visible_ || !enabled_) return nullptr;
  const Point o = childOrigin(origin);
  const std::vector<Control*> order = drawOrder();
  for (auto it = order.rbegin(); it != order.rend(); ++it)
    if (Control* hit = (*it)->overlayHitTest(point, o)) return hit;
  return Control::overlayHitTest(point, origin);
}

Control* Panel::hitTest(Point point, Point origin) {
  if (!visible_ || !enabled_) return nullptr;
  const Point o = childOrigin(origin);
  const std::vector<Control*> order = drawOrder();
  for (auto it = order.rbegin(); it != order.rend(); ++it)
    if (Control* hit = (*it)->overlayHitTest(point, o)) return hit;
  for (auto it = order.rbegin(); it != order.rend(); ++it)
    if (Control* hit = (*it)->hitTest(point, o)) return hit;
  return Control::hitTest(point, origin);
}

bool Panel::dismissOverlays(Point point, Point origin) {
  bool changed = false;
  const Point o = childOrigin(origin);
  for (auto& child : children_)
    if (child && child->visible()) changed |= child->dismissOverlays(point, o);
  changed |= Control::dismissOverlays(point, origin);
  return changed;
}

bool Panel::tick() {
  for (auto& child : children_)
    if (child && child->visible() && child->tick()) return true;
  return false;
}

void Panel::layoutChildren() {
  const Rect content = contentBounds();
  const std::vector<Rect> regions = contentRegions();
  for (auto& child : children_) {
    if (!child) continue;
    applyLayout(*child, content);
    fitToRegions(*child, regions, content);
  }
}

void Panel::windowChanged() {
  for (auto& child : children_)
    if (child) child->attachToWindow(window_);
}

void Panel::windowMoved() {
  for (auto& child : children_) {
    if (!child) continue;
    child->windowMoved();
    for (const auto& attached : child->attachedChildren())
      if (attached) attached->windowMoved();
  }
}

void Panel::markDrawOrderDirty() {
  panelDrawOrderDirty_ = true;
  drawOrderDirty_ = true;
}

}  // namespace tessel
