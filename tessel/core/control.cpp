#include "tessel/core/control.h"

#include <algorithm>

#include "tessel/core/panel.h"
#include "tessel/core/window_host.h"
#include "tessel/paint/shape_geometry.h"

namespace tessel {

namespace {

template <typename E>
void emitOn(Signal<E>& signal, E& event, Control* emitter) {
  prepareEvent(event, emitter);
  signal.emit(event);
}

}  // namespace

std::wstring anchorText(uint32_t anchors) {
  std::wstring text;
  const std::pair<uint32_t, const wchar_t*> names[] = {{kAnchorLeft, L"Left"},
                                                       {kAnchorTop, L"Top"},
                                                       {kAnchorRight, L"Right"},
                                                       {kAnchorBottom, L"Bottom"}};
  for (const auto& [flag, name] : names) {
    if (!(anchors & flag)) continue;
    if (!text.empty()) text += L"|";
    text += name;
  }
  return text.empty() ? L"None" : text;
}

void ControlState::setValue(const std::wstring& key, const std::wstring& value) {
  for (StateValue& entry : values) {
    if (entry.first == key) {
      entry.second = value;
      return;
    }
  }
  values.emplace_back(key, value);
}

const std::wstring* ControlState::value(const std::wstring& key) const {
  for (const StateValue& entry : values)
    if (entry.first == key) return &entry.second;
  return nullptr;
}

Control::Control(std::wstring id, Rect bounds)
    : id_(std::move(id)), bounds_(bounds), designBounds_(bounds) {}

Control::~Control() = default;

void Control::setBounds(const Rect& rect) {
  if (rect == bounds_) return;
  invalidate(16);
  bounds_ = rect;
  designBounds_ = rect;
  designCaptured_ = false;
  layoutChildren();
  layoutAttachedChildren();
  updateWindowRegion();
  invalidate(16);
}

bool Control::applySkin(const StyleSheet&) {
  return false;
}
void Control::styleApplied() {}
bool Control::isStaticText() const {
  return false;
}
bool Control::isContainer() const {
  return false;
}
const std::wstring& Control::tooltipText() const {
  return tooltip_;
}
std::wstring Control::clippedText() const {
  return std::wstring();
}
const ControlList& Control::children() const {
  return attachedChildren_;
}

Size Control::minimumSize() const {
  if (collapsed_) return Size{};
  Size base;
  if (hasMinimumSize_) {
    base = minimumSize_;
  } else if (designCaptured_) {
    base = Size{designBounds_.width, designBounds_.height};
  } else {
    base = Size{bounds_.width, bounds_.height};
  }
  base.width = std::max(base.width, 0);
  base.height = std::max(base.height, 0);
  const Size demand = attachedChildrenDemand();
  return Size{std::max(base.width, demand.width), std::max(base.height, demand.height)};
}

Rect Control::contentBounds() const {
  return Rect{0, 0, std::max(bounds_.width, 0), std::max(bounds_.height, 0)};
}

std::vector<Rect> Control::contentRegions() const {
  return {contentBounds()};
}

Rect Control::geometryBounds() const {
  Rect box;
  for (const Rect& band : geometryBands(3, 1))
    box = uniteRects(box, band);
  return box;
}

Rect Control::geometryInnerBounds() const {
  const std::vector<Rect> bands = geometryBands(3, 1);
  if (bands.empty()) return Rect{};
  int32_t left = INT32_MIN, right = INT32_MAX, top = INT32_MAX, bottom = INT32_MIN;
  for (const Rect& band : bands) {
    if (band.empty()) continue;
    left = std::max(left, band.x);
    right = std::min(right, band.right());
    top = std::min(top, band.y);
    bottom = std::max(bottom, band.bottom());
  }
  if (left >= right || top >= bottom) return Rect{};
  return Rect{left, top, right - left, bottom - top};
}

std::vector<Rect> Control::geometryBands(int32_t, int32_t bandHeight) const {
  if (contourSpans_.empty()) return contentRegions();
  if (bandHeight <= 1) return contourSpans_;
  std::vector<Rect> merged;
  for (const Rect& span : contourSpans_) {
    if (span.empty()) continue;
    if (!merged.empty()) {
      Rect& last = merged.back();
      if (last.x == span.x && last.width == span.width && last.bottom() == span.y &&
          last.height < bandHeight) {
        last.height += span.height;
        continue;
      }
    }
    merged.push_back(span);
  }
  return merged;
}

std::optional<SurfaceStyle> Control::surfaceStyle() const {
  return std::nullopt;
}

void Control::captureState(ControlState& state) const {
  state.id = id_;
  state.bounds = bounds_;
  state.visible = visible_;
  state.enabled = enabled_;
  state.collapsed = collapsed_;
  state.styleId = styleId_;
  state.values.clear();
  captureExtraState(state);
}

void Control::applyState(const ControlState& state, bool restoreBounds) {
  if (restoreBounds) setBounds(state.bounds);
  setVisible(state.visible);
  setEnabled(state.enabled);
  setCollapsed(state.collapsed);
  styleId_ = state.styleId;
  for (const StateValue& value : state.values)
    applyExtraState(value);
}

void Control::themeChanged() {
  if (themeChangedHandler_) themeChangedHandler_(*this);
  for (auto& control : tooltipControls_)
    if (control) control->themeChanged();
  for (auto& control : attachedChildren_)
    if (control) control->themeChanged();
}

void Control::paint(Canvas&, Point) {}
void Control::paintOverlay(Canvas&, Point) {}

Point Control::childOrigin(Point origin) const {
  const Rect& place =
      geometryMode_ == kGeometryFollow && hasFollowBounds() ? followBounds_ : bounds_;
  return Point{origin.x + place.x, origin.y + place.y};
}

Control* Control::overlayHitTest(Point point, Point origin) {
  if (!visible_ || !enabled_) return nullptr;
  const Point inner = childOrigin(origin);
  const std::vector<Control*> order = attachedDrawOrder();
  for (auto it = order.rbegin(); it != order.rend(); ++it)
    if (Control* hit = (*it)->overlayHitTest(point, inner)) return hit;
  return nullptr;
}

Control* Control::hitTest(Point point, Point origin) {
  if (!visible_ || !enabled_) return nullptr;
  if (!attachedChildren_.empty()) {
    const Point inner = childOrigin(origin);
    const std::vector<Control*> order = attachedDrawOrder();
    for (auto it = order.rbegin(); it != order.rend(); ++it)
      if (Control* hit = (*it)->overlayHitTest(point, inner)) return hit;
    for (auto it = order.rbegin(); it != order.rend(); ++it)
      if (Control* hit = (*it)->hitTest(point, inner)) return hit;
  }
  const Rect& place =
      geometryMode_ == kGeometryFollow && hasFollowBounds() ? followBounds_ : bounds_;
  const Rect absolute{origin.x + place.x, origin.y + place.y, place.width, place.height};
  if (!absolute.contains(point.x, point.y)) return nullptr;
  const Point local{point.x - absolute.x, point.y - absolute.y};
  mousePosition_ = local;
  const bool shaped = geometryMode_ == kGeometryDeform ||
                      (geometryMode_ == kGeometryFollow && followMode_ == kFollowScanline);
  if (!contourSpans_.empty() && shaped) {
    const bool inSpan =
        std::any_of(contourSpans_.begin(), contourSpans_.end(),
                    [&](const Rect& span) { return span.contains(local.x, local.y); });
    if (!inSpan) return nullptr;
  }
  return containsPoint(local) ? this : nullptr;
}

bool Control::dismissOverlays(Point point, Point origin) {
  bool changed = false;
  const Point inner = childOrigin(origin);
  for (auto& child : attachedChildren_)
    if (child && child->visible()) changed |= child->dismissOverlays(point, inner);
  return changed;
}

void Control::setHot(bool hot) {
  hot_ = hot;
  invalidate(8);
}

void Control::setPressed(bool pressed) {
  pressed_ = pressed;
  invalidate(8);
}

void Control::mouseDown() {}
void Control::mouseDragged() {}
void Control::clicked() {}
bool Control::mouseWheel(int32_t) {
  return false;
}
bool Control::mouseHorizontalWheel(int32_t) {
  return false;
}
bool Control::keyDown(uint32_t, bool, bool, bool, NativeWindow) {
  return false;
}
bool Control::charInput(char16_t, NativeWindow) {
  return false;
}

bool Control::tick() {
  for (auto& child : attachedChildren_)
    if (child && child->visible() && child->tick()) return true;
  return false;
}

bool Control::containsPoint(Point local) const {
  return local.x >= 0 && local.y >= 0 && local.x < bounds_.width && local.y < bounds_.height;
}

void Control::layoutChildren() {}
void Control::windowChanged() {}
void Control::windowMoved() {}
void Control::focusLost() {}
void Control::captureExtraState(ControlState&) const {}
void Control::applyExtraState(const StateValue&) {}
void Control::markDrawOrderDirty() {
  drawOrderDirty_ = true;
}

void Control::setVisible(bool visible) {
  if (visible == visible_) return;
  invalidate(16);
  visible_ = visible;
  if (parent_) parent_->markDrawOrderDirty();
  updateWindowRegion();
  invalidate(16);
}

void Control::setEnabled(bool enabled) {
  enabled_ = enabled;
  invalidate(8);
}

void Control::setCollapsed(bool collapsed) {
  collapsed_ = collapsed;
  // Siblings' minimum sizes change with it, so all of the window may move.
  if (window_) window_->invalidateAll();
}

void Control::setZOrder(int32_t zOrder) {
  zOrder_ = zOrder;
  if (parent_) parent_->markDrawOrderDirty();
  if (window_) window_->invalidateAll();
}

void Control::setAnchors(uint32_t anchors) {
  anchors_ = anchors;
  // The anchors and the rectangle they keep are taken at the same moment.
  designBounds_ = bounds_;
}

void Control::setMinimumSize(Size size) {
  minimumSize_ = size;
  hasMinimumSize_ = true;
}

Control* Control::addAttachedChild(std::unique_ptr<Control> child) {
  if (!child) return nullptr;
  Control* raw = child.get();
  raw->parent_ = this;
  attachedChildren_.push_back(std::move(child));
  raw->attachToWindow(window_);
  markDrawOrderDirty();
  layoutAttachedChildren();
  updateWindowRegion();
  return raw;
}

void Control::setContourSpans(std::vector<Rect> spans) {
  contourSpans_ = std::move(spans);
}

void Control::clearGeometry() {
  const bool hadContour = !contourSpans_.empty();
  contourSpans_.clear();
  rowBands_.clear();
  columnBands_.clear();
  bandsFromBottom_ = false;
  bandsFromRight_ = false;
  followOffset_ = Point{};
  followBounds_ = Rect{};
  if (hadContour) layoutChildren();
}

CommandEvent Control::makeCommand(const std::wstring& value) {
  CommandEvent event;
  prepareEvent(event, this);
  event.handled = false;
  event.command = commandName_.empty() ? id_ : commandName_;
  event.value = value;
  return event;
}

void Control::emitCommand(CommandEvent& event) {
  if (event.command.empty()) event.command = commandName_.empty() ? id_ : commandName_;
  emitOn(command_, event, this);
}
void Control::emitValueChanged(ValueChangedEvent& event) {
  emitOn(valueChanged_, event, this);
}
void Control::emitSelectionChanged(SelectionChangedEvent& event) {
  emitOn(selectionChanged_, event, this);
}
void Control::emitActivation(ActivationEvent& event) {
  emitOn(activation_, event, this);
}
void Control::emitCommit(CommitEvent& event) {
  emitOn(commit_, event, this);
}
void Control::emitExpansionChanged(ExpansionChangedEvent& event) {
  emitOn(expansionChanged_, event, this);
}
void Control::emitSortChanged(SortChangedEvent& event) {
  emitOn(sortChanged_, event, this);
}
void Control::emitColumnWidthsChanged(ColumnWidthsChangedEvent& event) {
  emitOn(columnWidthsChanged_, event, this);
}
void Control::emitPopup(PopupEvent& event) {
  emitOn(popup_, event, this);
}
void Control::emitScroll(ScrollEvent& event) {
  emitOn(scroll_, event, this);
}

const std::wstring& Control::composedTooltip() {
  const std::wstring& description = tooltipText();
  const std::wstring clipped = clippedText();
  if (clipped.empty()) return description;
  if (description.empty() || description.compare(0, clipped.size(), clipped) == 0) {
    tooltipCache_ = description.empty() ? clipped : description;
    return tooltipCache_;
  }
  tooltipCache_ = clipped + L"\n" + description;
  return tooltipCache_;
}

Rect Control::visualRect(Point origin, int32_t margin) const {
  Rect box{origin.x + bounds_.x, origin.y + bounds_.y, bounds_.width, bounds_.height};
  if (hasFollowBounds()) {
    box = uniteRects(box, Rect{origin.x + followBounds_.x, origin.y + followBounds_.y,
                               followBounds_.width, followBounds_.height});
  }
  for (const Rect& span : contourSpans_) {
    box = uniteRects(box, Rect{origin.x + bounds_.x + span.x, origin.y + bounds_.y + span.y,
                               span.width, span.height});
  }
  return inflateRect(box, margin);
}

std::optional<Point> Control::absoluteParentOrigin() const {
  if (window_ == nullptr) return std::nullopt;
  Point origin;
  const Control* top = this;
  for (const Control* up = parent_; up != nullptr; up = up->parent_) {
    const Point inner = up->childOrigin(Point{});
    origin.x += inner.x;
    origin.y += inner.y;
    top = up;
  }
  if (top == window_->rootControl()) return origin;
  for (Control* tooltip : window_->tooltipControls())
    if (top == tooltip) return origin;
  return std::nullopt;
}

void Control::invalidate(int32_t margin) {
  if (window_ == nullptr) return;
  const std::optional<Point> origin = absoluteParentOrigin();
  if (!origin) {
    window_->invalidateAll();
    return;
  }
  const Size client = window_->clientSize();
  const Rect area =
      intersectRects(visualRect(*origin, margin), Rect{0, 0, client.width, client.height});
  if (!area.empty()) window_->invalidateRect(area);
}

void Control::attachToWindow(WindowHost* window) {
  if (window_ != window) {
    window_ = window;
    windowChanged();
  }
  for (auto& control : tooltipControls_)
    if (control) control->attachToWindow(window);
  for (auto& control : attachedChildren_)
    if (control) control->attachToWindow(window);
}

const std::vector<Control*>& Control::attachedDrawOrder() {
  if (drawOrderDirty_) {
    drawOrder_.clear();
    for (auto& child : attachedChildren_)
      if (child && child->visible()) drawOrder_.push_back(child.get());
    std::stable_sort(drawOrder_.begin(), drawOrder_.end(),
                     [](const Control* a, const Control* b) { return a->zOrder() < b->zOrder(); });
    drawOrderDirty_ = false;
  }
  return drawOrder_;
}

void Control::layoutAttachedChildren() {
  if (attachedChildren_.empty()) return;
  const Rect content = contentBounds();
  const std::vector<Rect> regions = contentRegions();
  for (auto& child : attachedChildren_) {
    if (!child) continue;
    applyLayout(*child, content);
    fitToRegions(*child, regions, content);
  }
}

Size Control::attachedChildrenDemand() const {
  Size demand;
  for (const auto& child : attachedChildren_) {
    if (!child || !child->visible()) continue;
    const Size hint = minimumParentSizeHint(*child);
    demand.width = std::max(demand.width, hint.width);
    demand.height = std::max(demand.height, hint.height);
  }
  return demand;
}

void Control::updateWindowRegion() {
  if (window_) window_->updateRegion();
}

void Control::paintAttached(Canvas& canvas, Point origin) {
  if (attachedChildren_.empty()) return;
  const Point inner = childOrigin(origin);
  CanvasState state(canvas);
  std::vector<Rect> regions = contentRegions();
  if (!regions.empty()) {
    for (Rect& region : regions) {
      region.x += inner.x;
      region.y += inner.y;
    }
    canvas.clipToRects(regions);
  }
  const Rect clip = canvas.clipBox();
  for (Control* child : attachedDrawOrder()) {
    if (intersectRects(child->visualRect(inner, 16), clip).empty()) continue;
    paintChild(canvas, *child, inner, false);
  }
}

void Control::paintAttachedOverlays(Canvas& canvas, Point origin) {
  if (attachedChildren_.empty()) return;
  const Point inner = childOrigin(origin);
  for (Control* child : attachedDrawOrder())
    paintChild(canvas, *child, inner, true);
}

Control* findById(Control& root, const std::wstring& id) {
  if (root.id() == id) return &root;
  for (const auto& child : root.children()) {
    if (!child) continue;
    if (Control* found = findById(*child, id)) return found;
  }
  return nullptr;
}

int32_t applySkinTree(const StyleSheet& sheet, Control& root) {
  int32_t styled = 0;
  if (!root.styleId().empty() && root.applySkin(sheet)) ++styled;
  for (const auto& child : root.attachedChildren())
    if (child) styled += applySkinTree(sheet, *child);
  if (&root.children() != &root.attachedChildren()) {
    for (const auto& child : root.children())
      if (child) styled += applySkinTree(sheet, *child);
  }
  root.styleApplied();
  return styled;
}

bool applyStyleId(const StyleSheet& sheet, Control& control, std::wstring styleId) {
  control.setStyleId(std::move(styleId));
  return control.applySkin(sheet);
}

}  // namespace tessel
